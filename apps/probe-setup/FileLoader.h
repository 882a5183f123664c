#pragma once

#include "apps/probe-setup/ProbeDocument.h"

#include <QCoreApplication>
#include <QString>

#include <future>
#include <memory>
#include <vector>

class QWidget;

namespace ProbeSetup {

/// Reads files beside the window, which goes on living: where it takes long its progress is shown, and it can
/// be cancelled, by its button and by closing it.
class FileLoader {
    Q_DECLARE_TR_FUNCTIONS(FileLoader)

public:
    /// Both outlive the loader. The window takes no input meanwhile.
    FileLoader(QWidget& window, const ProbeDocument& document) : m_window(window), m_document(document) {}

    /// Nothing when the person has cancelled. Raises what ProbeDocument::Read raises.
    [[nodiscard]] std::unique_ptr<ProbeDocument::Loaded> Load(const QString& path);
    /// Gives up the reading that goes on, as a person does who cancels it; false where none does.
    bool Cancel();

private:
    using Result = std::future<std::unique_ptr<ProbeDocument::Loaded>>;

    QWidget& m_window;
    const ProbeDocument& m_document;
    bool m_isLoading = false;
    bool m_isGivenUp = false;
    std::vector<Result> m_cancelled; // still running, perhaps: at the end they are waited for
};

} // namespace ProbeSetup
