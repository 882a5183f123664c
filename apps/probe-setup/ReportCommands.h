#pragma once

#include "apps/probe-setup/ProbeDocument.h"

#include <QCoreApplication>

#include <cstddef>
#include <vector>

class QMainWindow;
class QTextDocument;

namespace ProbeSetup {

/// Puts probes on paper: on a printer or into a PDF file.
class ReportCommands {
    Q_DECLARE_TR_FUNCTIONS(ReportCommands)

public:
    /// All of it outlives the commands. Questions and failures are shown over `window`.
    ReportCommands(QMainWindow& window, ProbeDocument& document, QuorConversions::Platform& platform)
        : m_window(window), m_document(document), m_platform(platform) {}

    /// Asks for a printer.
    void Print(const std::vector<std::size_t>& probes);
    /// Asks for a file.
    void SavePdf(const std::vector<std::size_t>& probes);

private:
    void Write(const std::vector<std::size_t>& probes, QTextDocument& paper);

    QMainWindow& m_window;
    ProbeDocument& m_document;
    QuorConversions::Platform& m_platform;
};

} // namespace ProbeSetup
