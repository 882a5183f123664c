// Never compiled: the check of the includes has to complain about each line.
#include "QuorConversions/dialogs/Above.h"
#include "QuorIniFile/detail/Internal.h"
#include <QString>
