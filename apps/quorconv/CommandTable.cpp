#include "apps/quorconv/commands/Rows.h"

namespace quorconv {

const std::vector<const CommandRow*>& Commands() {
    static const std::vector<const CommandRow*> rows{
        // look
        &typesRow,
        &explainRow,
        &listRow,
        &getRow,
        &showRow,
        &checkRow,
        &diffRow,
        // change
        &newRow,
        &setRow,
        &editRow,
        &copyRow,
        &renameRow,
        &retypeRow,
        &removeRow,
        &applyRow,
        &mergeRow,
        // in and out
        &exportRow,
        &putRow,
        // for shells and packages
        &completionRow,
        &manualRow,
    };
    return rows;
}

} // namespace quorconv
