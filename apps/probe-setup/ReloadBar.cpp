#include "apps/probe-setup/ReloadBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

namespace ProbeSetup {

ReloadBar::ReloadBar(const std::function<void()>& reload) : m_text(new QLabel) {
    setObjectName(QStringLiteral("reloadBar"));
    setFrameShape(StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    m_text->setObjectName(QStringLiteral("reloadText"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setForegroundRole(QPalette::ToolTipText);
    auto* const icon = new QLabel;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(size));
    auto* const button = new QPushButton(tr("Re&load"));
    button->setObjectName(QStringLiteral("reload"));
    button->setAccessibleName(tr("Reload the file"));
    auto* const layout = new QHBoxLayout(this);
    layout->addWidget(icon);
    layout->addWidget(m_text, 1);
    layout->addWidget(button);
    connect(button, &QPushButton::clicked, this, reload);
    hide();
}

void ReloadBar::ShowFor(const QString& file) {
    m_text->setText(tr("Another program has changed %1. The list shows an older state.").arg(file));
    setVisible(!file.isEmpty());
}

} // namespace ProbeSetup
