#pragma once

#include "apps/probe-setup/ProbeDocument.h"

#include <QCoreApplication>
#include <QDockWidget>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace ProbeSetup {

/// What the check has found in the probes of a document, in a list. It is up to date by itself; in a file of
/// very many probes it is when the person has asked for it.
class FindingPane final : public QDockWidget {
    Q_DECLARE_TR_FUNCTIONS(FindingPane)

public:
    /// The document outlives the pane. `found` is told all findings, for marks in the list; `goTo` is called
    /// with the place of the probe whose finding the person has chosen.
    FindingPane(ProbeDocument& document, std::function<void(const std::vector<ProbeFinding>&)> found,
                std::function<void(std::size_t)> goTo);

    /// Checks again when the document has changed since.
    void Refresh();
    /// Checks and shows the findings, whatever the size of the file.
    void Check();
    /// Gives the list the keyboard, at its first finding; without findings it stays where it is.
    void GoToList();
    /// Whether the findings are those of the document as it is.
    [[nodiscard]] bool IsUpToDate() const { return m_checked == m_document.Revision(); }

private:
    void Fill(const std::vector<ProbeFinding>& findings);
    [[nodiscard]] QTreeWidgetItem* ItemOf(const ProbeFinding& finding);

    ProbeDocument& m_document;
    std::function<void(const std::vector<ProbeFinding>&)> m_found;
    std::function<void(std::size_t)> m_goTo;
    QTreeWidget* m_list;
    QLabel* m_summary;
    std::optional<std::uint64_t> m_checked; // the revision that was checked last
};

} // namespace ProbeSetup
