#include "apps/probe-setup/FileLoader.h"

#include "QuorConversions/qt/QtText.h"

#include <QApplication>
#include <QFileInfo>
#include <QProgressDialog>
#include <QScopeGuard>

#include <atomic>
#include <chrono>
#include <utility>

namespace ProbeSetup {

using QuorConversions::QtToolkit::FromQt;

namespace {

struct State {
    std::atomic<int> percent = 0;
    std::atomic<bool> isCancelled = false;
};

/// Ends a reading that nobody waits for.
struct Cancelled {};

} // namespace

std::unique_ptr<ProbeDocument::Loaded> FileLoader::Load(const QString& path) {
    const auto state = std::make_shared<State>();
    Result result = std::async(std::launch::async, [&document = m_document, file = FromQt(path), state] {
        return document.Read(file, [&state](double part) {
            constexpr int all = 100;
            state->percent = static_cast<int>(part * all);
            if (state->isCancelled)
                throw Cancelled();
        });
    });

    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_window.setEnabled(false);
    m_isLoading = true;
    m_isGivenUp = false;
    const auto restore = qScopeGuard([this] {
        m_isLoading = false;
        m_window.setEnabled(true);
        QApplication::restoreOverrideCursor();
    });
    QProgressDialog progress(tr("Loading %1\u2026").arg(QFileInfo(path).fileName()), tr("Cancel"), 0, 100,
                             &m_window);
    progress.setWindowTitle(tr("Probe Setup"));
    progress.setWindowModality(Qt::ApplicationModal);
    progress.setAutoReset(false);
    constexpr int soon = 400; // milliseconds, after which a person begins to wonder
    progress.setMinimumDuration(soon);
    progress.setValue(0);
    constexpr auto often = std::chrono::milliseconds(5);
    while (result.wait_for(often) != std::future_status::ready) {
        progress.setValue(state->percent);
        // Only the dialog may be used, once it is there.
        QCoreApplication::processEvents(progress.isVisible() ? QEventLoop::AllEvents
                                                             : QEventLoop::ExcludeUserInputEvents);
        if (m_isGivenUp || progress.wasCanceled()) {
            state->isCancelled = true;
            m_cancelled.push_back(std::move(result));
            return nullptr;
        }
    }
    return result.get();
}

bool FileLoader::Cancel() {
    m_isGivenUp = m_isLoading;
    return m_isLoading;
}

} // namespace ProbeSetup
