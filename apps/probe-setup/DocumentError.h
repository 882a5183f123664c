#pragma once

#include "QuorProbeFile/ProbeText.h"
#include "QuorProbeFile/RecordAsRead.h"
#include "QuorProbeFile/RecordMerge.h"

#include <string>
#include <vector>

namespace ProbeSetup {

/// What the document cannot do, for a reason that it knows better than the library.
enum class Failure {
    NoSettingsFile,   ///< no probe stands in it, and it is no INI file; details: the line that shows it
    NoStandAloneFile, ///< the file's extension is that of no conversion type
    UnreadableRecord, ///< details: "[section] key" of what is missing or unreadable, or the library's
                      ///< messages
    UnknownType,      ///< details: the probe, and the code of its type
    ChangedByOthers,  ///< details: the probes that another program has changed or removed meanwhile, and that
                      ///< a save would write whole or remove; conflicts: the keys that it has changed, and
                      ///< that a save would give other values
    NameIsTaken,      ///< details: a new name that another program has used in the file meanwhile
    CannotWrite,      ///< details: the section, and the library's messages
    NoProbesInText,   ///< what was pasted or dropped has no probe
    UnreadableText,   ///< details: as of UnreadableRecord, of a text that is not the document's
    UnreadSections,   ///< details: the headers of sections of such a text that nobody reads
    SharedSection,    ///< details: a section that would go or move, the probe that it would follow, and
                      ///< another one, which has or keeps its settings in it too
};
/// A probe that another program has changed or removed.
struct ChangedProbe {
    std::wstring name;
    QuorProbeFile::RecordAsRead record; ///< as the file holds it now; of no probe when it is gone
    friend bool operator==(const ChangedProbe& a, const ChangedProbe& b) {
        return a.name == b.name && a.record.HasSameValues(b.record);
    }
};
struct DocumentError {
    Failure failure;
    std::wstring file;
    std::vector<std::wstring> details;
    std::vector<QuorProbeFile::RecordConflict> conflicts = {};
    std::vector<QuorProbeFile::ProbePhrase> phrases = {}; ///< the last of the details, for another language
    std::vector<ChangedProbe> changed = {};               ///< the probes of ChangedByOthers
};

/// What another program has written about the very probes or keys that are to be saved, and what is to give
/// way: the user has seen it, in the error of a save. Whatever else it has written meanwhile refuses the save
/// anew. What was removed of a changed probe comes back.
struct OthersChanges {
    std::vector<ChangedProbe> probes;
    std::vector<QuorProbeFile::RecordConflict> values;
};

} // namespace ProbeSetup
