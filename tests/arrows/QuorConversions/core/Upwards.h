// Never compiled: the check of the includes has to complain about both lines.
#include "QuorConversions/dialogs/Above.h"
#include <QString>
