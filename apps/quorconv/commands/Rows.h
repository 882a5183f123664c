#pragma once

#include "apps/quorconv/Command.h"

namespace quorconv {

extern const CommandRow applyRow;
extern const CommandRow checkRow;
extern const CommandRow completionRow;
extern const CommandRow copyRow;
extern const CommandRow diffRow;
extern const CommandRow editRow;
extern const CommandRow explainRow;
extern const CommandRow exportRow;
extern const CommandRow getRow;
extern const CommandRow listRow;
extern const CommandRow manualRow;
extern const CommandRow mergeRow;
extern const CommandRow newRow;
extern const CommandRow putRow;
extern const CommandRow removeRow;
extern const CommandRow renameRow;
extern const CommandRow retypeRow;
extern const CommandRow setRow;
extern const CommandRow showRow;
extern const CommandRow typesRow;

} // namespace quorconv
