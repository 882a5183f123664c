#include "QuorConversions/core/QuorObject.h"

#include "QuorConversions/core/RecordNames.h"
#include "QuorConversions/core/detail/BusyPointer.h"
#include "QuorConversions/core/detail/Record.h"
#include "QuorConversions/core/modMessages.h"
#include "QuorConversions/platform/HeadlessPlatform.h"

#include <exception>
#include <new>
#include <utility>

namespace QuorConversions {
namespace {

/// Brackets the writes of one record, so that the store makes them durable once. Without a Release they are
/// abandoned; a failure to close the bracket counts only when nothing failed before.
class RecordHold {
public:
    explicit RecordHold(INIFile& iniFile) : m_iniFile(&iniFile) { iniFile.Hold(); }
    RecordHold(const RecordHold&) = delete;
    RecordHold& operator=(const RecordHold&) = delete;
    ~RecordHold() {
        try {
            if (m_iniFile)
                m_iniFile->Abandon();
        } catch (...) { // an earlier error is on its way to the report
        }
    }

    void Release() {
        if (INIFile* const held = std::exchange(m_iniFile, nullptr))
            held->Release();
    }

private:
    INIFile* m_iniFile;
};

/// Fills an empty reference for as long as it lives and leaves it null again.
class TemporaryIniFile {
public:
    explicit TemporaryIniFile(std::shared_ptr<INIFile>& reference)
        : m_reference(reference), m_made(!reference) {}
    TemporaryIniFile(const TemporaryIniFile&) = delete;
    TemporaryIniFile& operator=(const TemporaryIniFile&) = delete;
    ~TemporaryIniFile() {
        if (m_made)
            m_reference = nullptr;
    }

    [[nodiscard]] bool IsNeeded() const { return m_made; }

private:
    std::shared_ptr<INIFile>& m_reference;
    bool m_made;
};

/// Reports the error that is being handled, on behalf of the class `source`.
void Report(Platform& platform, const wchar_t* source, EStringId context) noexcept {
    try {
        ReportError(platform, CurrentError(source), TableText(context), TableText(IDS_MESSAGE_TITLE));
    } catch (...) { // no memory left even for the words
    }
}

} // namespace

QuorObject::QuorObject(std::shared_ptr<Platform> platform, const wchar_t* className)
    : m_platform(platform ? std::move(platform) : DefaultPlatform()), m_className(className) {}

QuorObject::~QuorObject() = default;

void QuorObject::SetRegistry(std::shared_ptr<QuorRegistryII::Registry>& vData) { m_registry = vData; }

bool QuorObject::Changed() const { return m_changed; }

void QuorObject::SetChanged(bool value) { m_changed = value; }

QuorError QuorObject::Error(std::int32_t number, EStringId text) const {
    return {number, m_className, TableText(text)};
}

void QuorObject::ShowMessage(EStringId id, const std::wstring& text) const {
    QuorConversions::ShowMessage(*m_platform, id, text);
}

void QuorObject::ReportCurrentError(EStringId context) const noexcept {
    Report(*m_platform, m_className, context);
}

template <class Body>
void QuorObject::InFrame(std::shared_ptr<INIFile>& iniFile, const std::wstring& fname,
                         const std::wstring& secname, EStringId context, Body body) const {
    // References of its own: host code that runs inside a message box of a nested record may destroy this
    // object and drop the caller's reference to the file.
    const std::shared_ptr<Platform> platform = m_platform;
    const wchar_t* const className = m_className;
    const BusyPointer busy(*platform);
    const TemporaryIniFile temporary(iniFile);
    try {
        if (temporary.IsNeeded()) {
            if (fname.empty())
                throw Error(QuorIniFile::ERR_BAD_FILE_NAME, IDS_BAD_FILE_NAME);
            iniFile = platform->CreateIniFile();
            if (!iniFile)
                throw QuorError(QuorIniFile::ERR_CANNOT_CREATE, className,
                                TableText(IDS_NO_INI_COMPONENT) + L": " + fname);
            iniFile->SetFileName(fname);
        }
        const std::shared_ptr<INIFile> store = iniFile;
        store->SetSection(secname);
        body(*platform, store);
    } catch (...) {
        Report(*platform, className, context);
    }
}

std::exception_ptr QuorObject::WriteWhatCanBeWritten(const std::shared_ptr<INIFile>& store,
                                                     const std::wstring& secname) const {
    RecordWriter record(store, secname, m_className);
    try {
        WriteRecord(record);
        return nullptr;
    } catch (const std::bad_alloc&) {
        throw;
    } catch (...) {
        if (record.StoreFailed())
            throw;
        return std::current_exception();
    }
}

void QuorObject::WriteToFile(std::shared_ptr<INIFile>& iniFile, const std::wstring& fname,
                             const std::wstring& secname) const {
    bool isHeld = false;
    InFrame(iniFile, fname, secname, IDS_WRITING_SETTINGS,
            [&](Platform&, const std::shared_ptr<INIFile>& store) {
                isHeld = true;
                RecordHold hold(*store);
                store->WriteString(versionKey, QUOR_LIBRARY_VERSION);
                const std::exception_ptr refusal = WriteWhatCanBeWritten(store, secname);
                hold.Release(); // the report waits for the user: what was written must be safe by then
                if (refusal)
                    std::rethrow_exception(refusal);
            });
    if (isHeld || !iniFile)
        return;
    try { // whoever holds this record together with others has to know that it is missing
        const RecordHold missing(*iniFile);
    } catch (...) { // the error that kept it from being held was reported
    }
}

void QuorObject::WriteToFile(const std::wstring& fname, const std::wstring& secname) const {
    std::shared_ptr<INIFile> none;
    WriteToFile(none, fname, secname);
}

void QuorObject::WriteOrRaise(const std::shared_ptr<INIFile>& iniFile, const std::wstring& secname) const {
    iniFile->SetSection(secname);
    iniFile->WriteString(versionKey, QUOR_LIBRARY_VERSION);
    RecordWriter record(iniFile, secname, m_className, RecordWriter::Failures::Raised);
    WriteRecord(record);
}

bool QuorObject::ReadFromFile(const std::wstring& fname, const std::wstring& secname) {
    std::shared_ptr<INIFile> none;
    return ReadFromFile(none, fname, secname);
}

bool QuorObject::ReadFromFile(std::shared_ptr<INIFile>& iniFile, const std::wstring& fname,
                              const std::wstring& secname) {
    bool complete = false;
    InFrame(iniFile, fname, secname, IDS_READING_SETTINGS,
            [&](Platform& platform, const std::shared_ptr<INIFile>& store) {
                RecordReader record(store, secname);
                ReadRecord(record);
                complete = !record.Failed();
                if (!complete)
                    QuorConversions::ShowMessage(platform, IDS_WRONG_FILE_VERSION);
            });
    return complete;
}

} // namespace QuorConversions
