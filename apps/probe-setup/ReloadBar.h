#pragma once

#include <QCoreApplication>
#include <QFrame>
#include <QString>

#include <functional>

class QLabel;

namespace ProbeSetup {

/// A bar that tells that another program has changed the file, and offers to reload it.
class ReloadBar final : public QFrame {
    Q_DECLARE_TR_FUNCTIONS(ReloadBar)

public:
    /// It is hidden at first.
    explicit ReloadBar(const std::function<void()>& reload);
    /// Shows the bar for a file, by its name, or hides it for none.
    void ShowFor(const QString& file);

private:
    QLabel* m_text;
};

} // namespace ProbeSetup
