#include "apps/probe-setup/ReportCommands.h"

#include "QuorConversions/qt/QtText.h"
#include "QuorIniFile/QuorError.h"
#include "apps/probe-setup/MessageBox.h"
#include "apps/probe-setup/ProbeReport.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QFont>
#include <QLocale>
#include <QMainWindow>
#include <QPageLayout>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QSaveFile>
#include <QStatusBar>
#include <QTextDocument>

namespace ProbeSetup {

using QuorConversions::QtToolkit::FromQt;
using QuorConversions::QtToolkit::ToQt;

void ReportCommands::Write(const std::vector<std::size_t>& probes, QTextDocument& paper) {
    paper.setDefaultFont(QFont(QStringLiteral("Sans Serif"), 10));
    ProbeReport::Write(m_document, m_platform, probes, QDateTime::currentDateTime(), paper);
}

void ReportCommands::Print(const std::vector<std::size_t>& probes) {
    if (probes.empty())
        return;
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, &m_window);
    dialog.setWindowTitle(tr("Print probes"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    QTextDocument paper;
    Write(probes, paper);
    paper.print(&printer); // numbers the pages
}

void ReportCommands::SavePdf(const std::vector<std::size_t>& probes) {
    if (probes.empty())
        return;
    QFileDialog dialog(&m_window, tr("Save as PDF"), QFileInfo(ToQt(m_document.Path())).path(),
                       tr("PDF files (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString path = dialog.selectedFiles().value(0);
    const bool done = RunOrTell(&m_window, tr("%1 cannot be written.").arg(path), [&] {
        QSaveFile file(path);
        const auto fail = [&file] {
            throw QuorIniFile::QuorError(QuorIniFile::ERR_PATH_FILE_ACCESS, L"ReportCommands",
                                         FromQt(file.errorString()));
        };
        if (!file.open(QIODevice::WriteOnly))
            fail();
        {
            QPdfWriter pdf(&file);
            pdf.setPageSize(QPageSize(QLocale().measurementSystem() == QLocale::ImperialUSSystem
                                          ? QPageSize::Letter
                                          : QPageSize::A4));
            constexpr qreal margin = 20; // millimetres
            pdf.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
            pdf.setTitle(QFileInfo(path).completeBaseName());
            QTextDocument paper;
            Write(probes, paper);
            paper.print(&pdf); // numbers the pages
        }
        if (!file.commit())
            fail();
    });
    constexpr int shown = 5000; // milliseconds
    if (done)
        m_window.statusBar()->showMessage(tr("%1 is saved.").arg(path), shown);
}

} // namespace ProbeSetup
