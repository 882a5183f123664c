#pragma once

// All that a host needs of the INI-file component.
#include "QuorIniFile/AsciiCase.h"
#include "QuorIniFile/INIFile.h"
#include "QuorIniFile/IniCause.h"
#include "QuorIniFile/IniLeftover.h"
#include "QuorIniFile/IniLines.h"
#include "QuorIniFile/IniStore.h"
#include "QuorIniFile/IniTextReader.h"
#include "QuorIniFile/IniWarning.h"
#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"
#include "QuorIniFile/ValueText.h"
