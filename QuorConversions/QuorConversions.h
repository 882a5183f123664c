#pragma once

// All that a host needs of the conversions: the facade and the settings objects,
#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/polynomial/CQuorPolynomial.h"
#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorConversions/rtd/CQuorHTPRT.h"
#include "QuorConversions/rtd/CQuorIPTS68.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "QuorConversions/rtd/CQuorPT100.h"
#include "QuorConversions/rtd/CQuorWT90.h"
#include "QuorConversions/thermistor/CQuorThermistor.h"
#include "QuorConversions/thermocouple/CQuorTCPolynomial.h"
#include "QuorConversions/thermocouple/CQuorTCTable.h"
#include "QuorConversions/thermocouple/CQuorTCTypePoly.h"
#include "QuorConversions/thermocouple/CQuorTCTypeX.h"

// and what a platform of its own needs to draw dialogs, to word messages and to show help.
#include "QuorConversions/controls/ControlNames.h"
#include "QuorConversions/controls/Dialog.h"
#include "QuorConversions/core/NumberFromPaste.h"
#include "QuorConversions/core/NumberText.h"
#include "QuorConversions/core/ValueFormatter.h"
#include "QuorConversions/core/modHelp.h"
#include "QuorConversions/core/modMessages.h"
#include "QuorConversions/core/modPaths.h"
#include "QuorConversions/platform/HeadlessPlatform.h"
