#include "apps/probe-setup/CommandRules.h"

#include <QAction>

namespace ProbeSetup {

void CommandRules::Add(QAction& action, const Needs& needs) {
    m_rules.push_back({&action, needs, action.statusTip()});
}

QString CommandRules::ReasonAgainst(const Needs& needs, const State& state) {
    if (needs.writable && !state.isWritable)
        return tr("The file is read-only");
    if (needs.probe && state.selected == 0)
        return tr("No probe is selected");
    if (needs.one && state.selected > 1)
        return tr("This can be done with one probe only");
    if (needs.settings && !state.haveSettings)
        return tr("Conversions of this kind have no settings");
    if (needs.type && !state.knowType)
        return tr("The conversion type is not known");
    if (needs.changes && !state.hasChanges)
        return tr("There are no changes to save");
    if (needs.undo && !state.canUndo)
        return tr("There is no change to take back");
    if (needs.redo && !state.canRedo)
        return tr("There is no change to make again");
    return {};
}

void CommandRules::Apply(const State& state) const {
    for (const Rule& rule : m_rules) {
        const QString reason = ReasonAgainst(rule.needs, state);
        rule.action->setEnabled(reason.isEmpty());
        const QString tip = reason.isEmpty() ? rule.tip : reason;
        rule.action->setStatusTip(tip);
        rule.action->setToolTip(tip);
    }
}

} // namespace ProbeSetup
