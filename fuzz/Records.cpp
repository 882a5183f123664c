// Any file, read as the record of a conversion of every type: no crash, no exception, and a record that was
// read is written and read again as the same one. What has been read in part may hold a value that cannot be
// written: that is told, and what stands before it is written.

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/platform/HeadlessPlatform.h"
#include "fuzz/Claim.h"
#include "tests/support/TempFolder.h"

namespace {

using namespace QuorConversions;
using Fuzz::Claim;

constexpr const wchar_t* section = L"Probe";

/// Nobody reads the reports.
class Silent final : public HeadlessPlatform {
public:
    void ShowMessage(const MessageRequest& /*request*/) override { ++m_reports; }
    [[nodiscard]] std::size_t Reports() const { return m_reports; }

private:
    std::size_t m_reports = 0;
};

/// What `object` puts into an empty file; nothing when not all of it can be written.
template <class Object>
std::string Record(const Object& object, const TempFolder& folder, const Silent& platform) {
    std::filesystem::remove(folder.Path("record.ini"));
    std::shared_ptr<QuorIniFile::INIFile> builtIn;
    const std::size_t before = platform.Reports();
    object.WriteToFile(builtIn, folder.Name("record.ini"), section);
    const bool isWhole = platform.Reports() == before;
    Claim(!isWhole || std::filesystem::exists(folder.Path("record.ini")),
          "a record is written, or it is told why it is not");
    return isWhole ? folder.Read("record.ini") : "";
}

template <class Object>
bool ReadFrom(Object& object, const std::wstring& fileName) {
    std::shared_ptr<QuorIniFile::INIFile> builtIn;
    return object.ReadFromFile(builtIn, fileName, section);
}

/// Reads the file into `object`, and what the object writes then into `other`, which was made in the same
/// way.
template <class Object>
void ReadWriteRead(Object& object, Object& other, const TempFolder& folder, const Silent& platform) {
    const bool complete = ReadFrom(object, folder.Name("fuzz.ini"));
    const std::string record = Record(object, folder, platform);
    const bool again = ReadFrom(other, folder.Name("record.ini"));
    Claim(again || !complete, "a complete record is written as a complete record");
    if (again)
        Claim(Record(other, folder, platform) == record, "a record comes back as it was written");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TempFolder folder;
    static const std::shared_ptr<Silent> platform = std::make_shared<Silent>();
    folder.Write("fuzz.ini", Fuzz::Bytes(data, size));

    CQuorConversion conversion(platform);
    CQuorConversion other(platform);
    ReadWriteRead(conversion, other, folder, *platform);
    // And the file's section as that of the settings of each type, whatever type it names.
    for (std::int32_t type = CONV_NONE; type <= CONV_TCTYPEPOLY; ++type) {
        conversion.SetConversionType(static_cast<EQuorConversionType>(type));
        other.SetConversionType(CONV_NONE);
        other.SetConversionType(static_cast<EQuorConversionType>(type));
        if (conversion.Settings())
            ReadWriteRead(*conversion.Settings(), *other.Settings(), folder, *platform);
    }
    return 0;
}
