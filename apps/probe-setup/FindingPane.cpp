#include "apps/probe-setup/FindingPane.h"

#include "QuorConversions/qt/QtText.h"
#include "apps/probe-setup/Wording.h"

#include <QHeaderView>
#include <QLabel>
#include <QStyle>
#include <QTextDocument>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <utility>

namespace ProbeSetup {

using QuorConversions::QtToolkit::ToQt;

FindingPane::FindingPane(ProbeDocument& document, std::function<void(const std::vector<ProbeFinding>&)> found,
                         std::function<void(std::size_t)> goTo)
    : m_document(document),
      m_found(std::move(found)),
      m_goTo(std::move(goTo)),
      m_list(new QTreeWidget),
      m_summary(new QLabel) {
    setObjectName(QStringLiteral("findings"));
    setWindowTitle(tr("Findings"));
    m_list->setObjectName(QStringLiteral("findingList"));
    m_list->setAccessibleName(tr("Findings"));
    m_list->setHeaderLabels({tr("Probe"), tr("Line"), tr("Key"), tr("Finding")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_summary->setObjectName(QStringLiteral("findingSummary"));
    auto* const body = new QWidget;
    auto* const layout = new QVBoxLayout(body);
    layout->addWidget(m_summary);
    layout->addWidget(m_list);
    setWidget(body);
    const auto go = [this](const QTreeWidgetItem* item) {
        if (const QVariant probe = item->data(0, Qt::UserRole); probe.isValid())
            m_goTo(static_cast<std::size_t>(probe.toULongLong()));
    };
    connect(m_list, &QTreeWidget::itemActivated, this, go);
    connect(m_list, &QTreeWidget::itemClicked, this, go);
}

void FindingPane::Refresh() {
    // Where a check takes as long as a person would notice, it is not made after each step.
    constexpr std::size_t many = 5000;
    if (IsUpToDate())
        return;
    if (m_document.Count() > many) {
        Fill({});
        m_summary->setText(tr("This file is large: it is checked when you ask for it (F7)."));
        m_found({});
        return;
    }
    Check();
}

void FindingPane::Check() {
    const std::vector<ProbeFinding> findings = m_document.Check();
    m_checked = m_document.Revision();
    Fill(findings);
    m_found(findings);
}

void FindingPane::GoToList() {
    if (m_list->topLevelItemCount() == 0)
        return;
    m_list->setCurrentItem(m_list->topLevelItem(0));
    m_list->setFocus();
}

void FindingPane::Fill(const std::vector<ProbeFinding>& findings) {
    m_list->clear();
    QList<QTreeWidgetItem*> items;
    for (const ProbeFinding& finding : findings)
        items += ItemOf(finding);
    m_list->addTopLevelItems(items);
    m_list->setVisible(!items.isEmpty());
    m_summary->setText(items.isEmpty()
                           ? tr("No findings: all probes can be read, and their values are plausible.")
                           : tr("Findings: %1").arg(items.size()));
}

QTreeWidgetItem* FindingPane::ItemOf(const ProbeFinding& finding) {
    const QuorProbeFile::ProbeProblem& problem = finding.problem;
    auto* const item =
        new QTreeWidgetItem({finding.probe ? ToQt(m_document.Name(*finding.probe)) : ToQt(problem.section),
                             problem.line == 0 ? QString() : QString::number(problem.line), ToQt(problem.key),
                             Wording::Of(problem)});
    item->setIcon(0, style()->standardIcon(problem.IsWarning() ? QStyle::SP_MessageBoxWarning
                                                               : QStyle::SP_MessageBoxCritical));
    item->setToolTip(3, Qt::convertFromPlainText(item->text(3)));
    if (finding.probe)
        item->setData(0, Qt::UserRole, static_cast<qulonglong>(*finding.probe));
    return item;
}

} // namespace ProbeSetup
