#include "apps/probe-setup/CommandRules.h"

#include <QAction>

namespace ProbeSetup {

void CommandRules::Add(QAction& action, const Needs& needs) {
    m_rules.push_back({&action, needs, action.statusTip()});
}

void CommandRules::Apply(std::size_t selected, bool isWritable) const {
    for (const Rule& rule : m_rules) {
        QString reason;
        if (rule.needs.writable && !isWritable)
            reason = tr("The file is read-only");
        else if (rule.needs.probe && selected == 0)
            reason = tr("No probe is selected");
        else if (rule.needs.one && selected > 1)
            reason = tr("This can be done with one probe only");
        rule.action->setEnabled(reason.isEmpty());
        const QString tip = reason.isEmpty() ? rule.tip : reason;
        rule.action->setStatusTip(tip);
        rule.action->setToolTip(tip);
    }
}

} // namespace ProbeSetup
