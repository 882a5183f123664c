#pragma once

#include "QuorConversions/Export.h"
#include "QuorConversions/core/modStrings.h"
#include "QuorConversions/platform/Platform.h"
#include "QuorIniFile/INIFile.h"
#include "QuorIniFile/QuorError.h"
#include "QuorRegistryII/Registry.h"

#include <cmath>
#include <cstdint>
#include <exception>
#include <memory>
#include <string>

namespace QuorConversions {

using QuorIniFile::INIFile;
using QuorIniFile::QuorError;

class RecordReader;
class RecordWriter;

/// What the conversion, the settings objects and the ITS-90 ranges have in common: the host's platform and
/// registry, the changed flag, and saving and loading.
class QUORCONVERSIONS_EXPORT QuorObject {
public:
    QuorObject(const QuorObject&) = delete;
    QuorObject& operator=(const QuorObject&) = delete;
    virtual ~QuorObject();

    /// Keeps the reference to the host's registry, which may be null.
    virtual void SetRegistry(std::shared_ptr<QuorRegistryII::Registry>& vData);
    /// The registry that was set; null at first. The dialogs store their positions in it.
    [[nodiscard]] std::shared_ptr<QuorRegistryII::Registry> Registry() const { return m_registry; }

    /// Whether a value has been changed since the flag was last cleared. Only a host clears it; no save does.
    [[nodiscard]] virtual bool Changed() const;
    virtual void SetChanged(bool value);

    /// Writes the record into the section `secname`. If `iniFile` is null, the call creates an INI-file
    /// object for the file `fname` and releases it before it returns; otherwise `fname` is not used and may
    /// be empty. Every failure is reported to the user. After an error of the object itself (an index that it
    /// refuses, a code beyond 16 bits) the file keeps what was written before it. After a failure of the
    /// INI-file object, or lack of memory, nothing of the record is saved: its bracket is abandoned.
    void WriteToFile(std::shared_ptr<INIFile>& iniFile, const std::wstring& fname,
                     const std::wstring& secname) const;

    /// The same into the file `fname`, which is created if it does not exist, in a folder that must exist.
    ///
    /// Failures are reported to the user through the platform; the caller is not informed. A host that must
    /// know brackets the writes with Hold and Release of a store of its own, whose Release raises, calls
    /// WriteOrRaise, or keeps its probes in a QuorProbeFile::ProbeFile.
    void WriteToFile(const std::wstring& fname, const std::wstring& secname) const;

    /// The same as WriteToFile with an INI-file object, but failures are raised instead of being reported. A
    /// part of the record may have been written then: call it inside an edit of the store, which then saves
    /// nothing.
    void WriteOrRaise(const std::shared_ptr<INIFile>& iniFile, const std::wstring& secname) const;

    /// Reads the record from the section `secname`; `iniFile` and `fname` as in WriteToFile. True if every
    /// key was found. A key that is missing or cannot be read leaves the object's value unchanged, and the
    /// user is informed once; any other failure is reported too. Values that were read before a failure stay.
    bool ReadFromFile(std::shared_ptr<INIFile>& iniFile, const std::wstring& fname,
                      const std::wstring& secname);
    /// The same from the file `fname`.
    bool ReadFromFile(const std::wstring& fname, const std::wstring& secname);

protected:
    /// `className` is the source of the object's errors. A null platform means the headless one.
    QuorObject(std::shared_ptr<Platform> platform, const wchar_t* className);

    /// The platform; never null.
    [[nodiscard]] const std::shared_ptr<Platform>& HostPlatform() const { return m_platform; }
    /// The source of the object's errors.
    [[nodiscard]] const wchar_t* ClassName() const { return m_className; }

    /// An error of this class with a text from the string table.
    [[nodiscard]] QuorError Error(std::int32_t number, EStringId text) const;
    /// Shows `text`, which is made from the string-table entry `id`.
    void ShowMessage(EStringId id, const std::wstring& text) const;
    /// Reports the current exception to the user; call it inside a catch block.
    void ReportCurrentError(EStringId context) const noexcept;

    /// Marks the object changed if the new value differs, then stores it. NaN equals NaN here, and -0.0
    /// equals 0.0 but is stored.
    template <class T>
    void Assign(T& field, const T& value) {
        if (Differs(field, value))
            SetChanged(true);
        field = value;
    }

    /// The same, but a value that does not differ (a zero with the other sign) is not stored.
    template <class T>
    void AssignDifferent(T& field, const T& value) {
        if (Differs(field, value))
            Assign(field, value);
    }

    /// Whether a value counts as a change; NaN equals NaN.
    template <class T>
    [[nodiscard]] static bool Differs(const T& stored, const T& value) {
        return stored != value;
    }
    [[nodiscard]] static bool Differs(double stored, double value) {
        return stored != value && !(std::isnan(stored) && std::isnan(value));
    }

private:
    /// Writes the class's own keys, behind "Version".
    virtual void WriteRecord(RecordWriter& record) const = 0;
    /// Reads the class's own keys and applies each as it comes.
    virtual void ReadRecord(RecordReader& record) = 0;

    /// Writes the class's own keys up to an error that the object raises itself, which is returned; null when
    /// there was none. A failure of the store and a lack of memory are raised.
    [[nodiscard]] std::exception_ptr WriteWhatCanBeWritten(const std::shared_ptr<INIFile>& store,
                                                           const std::wstring& secname) const;

    /// Runs `body` on the selected section and reports what it raises. Once a nested record was read or
    /// written, host code may have destroyed this object: neither the frame nor the body uses it then.
    template <class Body>
    void InFrame(std::shared_ptr<INIFile>& iniFile, const std::wstring& fname, const std::wstring& secname,
                 EStringId context, Body body) const;

    std::shared_ptr<Platform> m_platform;
    const wchar_t* m_className;
    std::shared_ptr<QuorRegistryII::Registry> m_registry;
    bool m_changed = false;
};

} // namespace QuorConversions
