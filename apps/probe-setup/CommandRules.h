#pragma once

#include <QCoreApplication>
#include <QString>

#include <cstddef>
#include <vector>

class QAction;

namespace ProbeSetup {

/// What the commands of the window need. One that lacks it is disabled, and says why in its tool tip and in
/// the status bar.
class CommandRules {
    Q_DECLARE_TR_FUNCTIONS(CommandRules)

public:
    struct Needs {
        bool probe = false;    ///< at least one is selected
        bool one = false;      ///< no more than one is selected
        bool settings = false; ///< one of those that are selected may have settings
        bool type = false;     ///< and its type is one that the library knows
        bool writable = false; ///< the file may be written
        bool changes = false;  ///< there is something to save
        bool undo = false;     ///< there is a step to take back
        bool redo = false;     ///< there is a step to make again
    };
    /// What there is.
    struct State {
        std::size_t selected = 0;
        bool haveSettings = false; ///< one of those that are selected
        bool knowType = false;     ///< of one that has them
        bool isWritable = true;
        bool hasChanges = false;
        bool canUndo = false;
        bool canRedo = false;
    };

    /// The action has its status tip already. It outlives the rules.
    void Add(QAction& action, const Needs& needs);
    /// Enables and disables the actions.
    void Apply(const State& state) const;

private:
    /// Why a command cannot be run; empty when it can.
    [[nodiscard]] static QString ReasonAgainst(const Needs& needs, const State& state);

    struct Rule {
        QAction* action;
        Needs needs;
        QString tip;
    };
    std::vector<Rule> m_rules;
};

} // namespace ProbeSetup
