#pragma once

#include "apps/probe-setup/ProbeDocument.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QString>
#include <QTimer>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

class QTreeWidget;

namespace ProbeSetup {

/// The values of the selected probes beside the list, as their dialogs name them, with all digits and units.
/// They are looked at, and copied, as a table or as lines of text.
class ValuePane final : public QDockWidget {
    Q_DECLARE_TR_FUNCTIONS(ValuePane)

public:
    /// Document and platform, which tells the decimal separator, outlive the pane.
    ValuePane(ProbeDocument& document, QuorConversions::Platform& platform);

    /// Shows the values of these probes, as soon as nothing else is to be done: the list of probes does not
    /// wait for them. Of very many probes only the first ones are shown.
    void ShowValues(const std::vector<std::size_t>& probes);

private:
    void Fill();
    void AddProbe(std::size_t probe, bool withName);
    void Copy(bool asTable);

    ProbeDocument& m_document;
    QuorConversions::Platform& m_platform;
    QTreeWidget* m_list;
    std::optional<std::pair<std::uint64_t, std::vector<std::size_t>>> m_shown; // revision and probes
    QTimer m_idle;
};

} // namespace ProbeSetup
