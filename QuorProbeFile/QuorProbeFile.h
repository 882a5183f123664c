#pragma once

// The probes of a file, and all that a host needs for them.
#include "QuorProbeFile/ProbeEntry.h"
#include "QuorProbeFile/ProbeFile.h"
#include "QuorProbeFile/ProbeFileError.h"
#include "QuorProbeFile/ProbeNames.h"
#include "QuorProbeFile/ProbeProblem.h"
#include "QuorProbeFile/ProbeText.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "QuorProbeFile/ProbeWarning.h"
#include "QuorProbeFile/RecordAsRead.h"
#include "QuorProbeFile/RecordImage.h"
#include "QuorProbeFile/RecordMeaning.h"
#include "QuorProbeFile/RecordMerge.h"
#include "QuorProbeFile/RecordReference.h"
#include "QuorProbeFile/RecordValue.h"
#include "QuorProbeFile/SectionPlan.h"
#include "QuorProbeFile/TakenNames.h"
