// The frame around every save and load, on every class that has it.

#include "QuorConversions/core/QuorObject.h"

#include "QuorConversions/rtd/CQuorCVD.h"
#include "QuorConversions/rtd/CQuorIPTS68.h"
#include "QuorConversions/rtd/CQuorITS90.h"
#include "QuorIniFile/Utf8.h"
#include "tests/support/Messages.h"
#include "tests/support/Objects.h"
#include "tests/support/SettingsClasses.h"

#include <algorithm>
#include <functional>
#include <new>
#include <stdexcept>

using namespace QuorConversions;
using Support::ErrorReport;
using Support::MemoryIniFile;
using Support::MessageTexts;
using Support::readingSettings;
using Support::ScriptedPlatform;
using Support::versionMessage;
using Support::writingSettings;

namespace {

using Texts = std::vector<std::wstring>;
using Values = decltype(MemoryIniFile::values);
using Place = Values::key_type;

constexpr auto hostShape = EMousePointer{5}; // a shape that only the host knows
constexpr auto never = std::numeric_limits<std::size_t>::max();

/// One kind of object with a frame.
struct FramedObject {
    std::wstring name;
    std::wstring className;
    std::function<std::shared_ptr<QuorObject>(const std::shared_ptr<ScriptedPlatform>&)> make;
};

void PrintTo(const FramedObject& object, std::ostream* out) { *out << Support::Narrow(object.name); }

/// An ITS-90 object gets ranges that have coefficients.
void FillRanges(QuorObject& object) {
    if (auto* const its90 = dynamic_cast<CQuorITS90*>(&object)) {
        its90->LowRange()->SetRange(ITS90_RANGE_1);
        its90->HighRange()->SetRange(ITS90_RANGE_6);
    }
}

std::shared_ptr<CQuorITS90> NewITS90(const std::shared_ptr<ScriptedPlatform>& platform) {
    auto its90 = Support::NewSettings<CQuorITS90>(CONV_ITS90, platform);
    FillRanges(*its90);
    return its90;
}

std::shared_ptr<CQuorConversion> NewConversion(EQuorConversionType type,
                                               const std::shared_ptr<ScriptedPlatform>& platform) {
    auto conversion = std::make_shared<CQuorConversion>(platform);
    conversion->SetConversionType(type);
    FillRanges(*conversion->Settings());
    return conversion;
}

std::vector<FramedObject> EveryObject() {
    std::vector<FramedObject> objects;
    for (const auto& each : Support::settingsClasses)
        objects.push_back({each.className, each.className, [code = each.code](const auto& platform) {
                               auto settings = Support::NewSettings<SettingsObject>(code, platform);
                               FillRanges(*settings);
                               return settings;
                           }});
    objects.push_back({L"CQuorITS90LowRange", L"CQuorITS90LowRange",
                       [](const auto& platform) { return NewITS90(platform)->LowRange(); }});
    objects.push_back({L"CQuorITS90HighRange", L"CQuorITS90HighRange",
                       [](const auto& platform) { return NewITS90(platform)->HighRange(); }});
    objects.push_back({L"ConversionOfCVD", L"CQuorConversion",
                       [](const auto& platform) { return NewConversion(CONV_CVD, platform); }});
    objects.push_back({L"ConversionOfITS90", L"CQuorConversion",
                       [](const auto& platform) { return NewConversion(CONV_ITS90, platform); }});
    return objects;
}

/// What user, host and store saw of one save or load that was given no INI-file object.
struct Outcome {
    Texts events, messages, operations;
    Values values;
    bool complete = false;
    bool argumentIsNull = false;

    [[nodiscard]] Texts LastEvents(std::ptrdiff_t count) const {
        return {events.end() - std::min<std::ptrdiff_t>(count, std::ssize(events)), events.end()};
    }
    [[nodiscard]] auto Count(const wchar_t* operation) const {
        return std::count(operations.begin(), operations.end(), operation);
    }
};

/// Notes its release and leaves behind what it was asked and what it held.
class FleetingIniFile : public MemoryIniFile {
public:
    FleetingIniFile(ScriptedPlatform& platform, Outcome& outcome)
        : m_platform(platform), m_outcome(outcome) {}
    ~FleetingIniFile() override {
        m_platform.Note(L"ini file released");
        m_outcome.operations = operations;
        m_outcome.values = values;
    }

private:
    ScriptedPlatform& m_platform;
    Outcome& m_outcome;
};

/// Does what the test says as soon as a section is selected.
class FailingIniFile : public MemoryIniFile {
public:
    std::function<void()> fail;
    void SetSection(std::wstring_view) override { fail(); }
};

/// One function of it raises.
class BrokenPlatform : public ScriptedPlatform {
public:
    explicit BrokenPlatform(std::string broken) : m_broken(std::move(broken)) {}
    std::shared_ptr<INIFile> CreateIniFile() override {
        FailIn("CreateIniFile");
        return ScriptedPlatform::CreateIniFile();
    }
    void ShowMessage(const MessageRequest& request) override {
        FailIn("ShowMessage");
        ScriptedPlatform::ShowMessage(request);
    }
    EMousePointer MousePointer() const override {
        FailIn("MousePointer");
        return ScriptedPlatform::MousePointer();
    }
    void SetMousePointer(EMousePointer shape) override {
        FailIn("SetMousePointer");
        ScriptedPlatform::SetMousePointer(shape);
    }

private:
    void FailIn(const char* function) const {
        if (m_broken == function)
            throw QuorError(70, L"Host", L"Permission denied");
    }
    std::string m_broken;
};

/// How many levels below its own record a section lies.
std::size_t Depth(const std::wstring& section) {
    std::size_t depth = 0;
    for (auto at = section.find(L" - "); at != std::wstring::npos; at = section.find(L" - ", at + 3))
        ++depth;
    return depth;
}

/// What an object holds, as its own record.
Values Record(const QuorObject& object) {
    const auto memory = std::make_shared<MemoryIniFile>();
    std::shared_ptr<INIFile> ini = memory;
    object.WriteToFile(ini, L"", L"Probe");
    return memory->values;
}

/// The same keys with values of which no two are alike and none is a default.
Values OtherValues(Values values) {
    double number = 1.0;
    for (auto& [place, value] : values) {
        if (auto* const text = std::get_if<std::wstring>(&value); text && place.second != L"Version")
            *text = place.second + L" of the file";
        if (auto* const flag = std::get_if<bool>(&value))
            *flag = true;
        if (auto* const real = std::get_if<double>(&value))
            *real = number += 1.125;
    }
    return values;
}

class QuorObjectTest : public testing::TestWithParam<FramedObject> {
protected:
    /// The INI-file object of the call holds `content` and fails at the operation `failAt`.
    static Outcome Run(bool save, const Values& content, std::size_t failAt) {
        Outcome outcome;
        const auto platform = std::make_shared<ScriptedPlatform>();
        const auto object = GetParam().make(platform);
        platform->SetMousePointer(hostShape);
        platform->MakeIniFilesWith([&] {
            auto ini = std::make_shared<FleetingIniFile>(*platform, outcome);
            ini->values = content;
            ini->failAt = failAt;
            return ini;
        });
        std::shared_ptr<INIFile> ini;
        if (save)
            EXPECT_NO_THROW(object->WriteToFile(ini, L"probe.ini", L"Probe"));
        else
            EXPECT_NO_THROW(outcome.complete = object->ReadFromFile(ini, L"probe.ini", L"Probe"));
        outcome.argumentIsNull = !ini;
        outcome.events = platform->Events();
        outcome.messages = MessageTexts(*platform);
        return outcome;
    }
    static Outcome Save(std::size_t failAt = never) { return Run(true, {}, failAt); }
    static Outcome Load(const Values& content, std::size_t failAt = never) {
        return Run(false, content, failAt);
    }

    /// Takes the platform away from the INI-file objects and says what the user is told of it, both ways.
    static void ExpectReports(const std::wstring& fname, std::int32_t number, const wchar_t* description) {
        const auto platform = std::make_shared<ScriptedPlatform>();
        const auto object = GetParam().make(platform);
        platform->SetMousePointer(hostShape);
        platform->MakeIniFilesWith([] { return nullptr; });
        std::shared_ptr<INIFile> ini;
        object->WriteToFile(ini, fname, L"Probe");
        EXPECT_FALSE(object->ReadFromFile(ini, fname, L"Probe"));
        EXPECT_EQ(MessageTexts(*platform),
                  (Texts{ErrorReport(writingSettings, number, description, GetParam().className),
                         ErrorReport(readingSettings, number, description, GetParam().className)}));
        EXPECT_EQ(ini, nullptr);
        EXPECT_EQ(platform->MousePointer(), hostShape);
    }

    /// Reads `stored` without the key at `missing` into a new object; returns what the object holds then.
    static Values LoadWithout(const Values& stored, const Place& missing, bool scribble) {
        const auto platform = std::make_shared<ScriptedPlatform>();
        const auto object = GetParam().make(platform);
        const auto memory = std::make_shared<MemoryIniFile>();
        memory->values = stored;
        memory->Remove(missing.first, missing.second);
        memory->scribblesOnMissingKeys = scribble;
        std::shared_ptr<INIFile> ini = memory;
        EXPECT_FALSE(object->ReadFromFile(ini, L"", L"Probe"));
        EXPECT_EQ(MessageTexts(*platform), Texts(Depth(missing.first) + 1, versionMessage)); // once a level
        return Record(*object);
    }

    static Values OwnValues() { return Record(*GetParam().make(std::make_shared<ScriptedPlatform>())); }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Every, QuorObjectTest, testing::ValuesIn(EveryObject()),
                         [](const auto& test) { return Support::Narrow(test.param.name); });

TEST_P(QuorObjectTest, SavesThroughAnIniFileObjectOfItsOwn) {
    const Outcome outcome = Save();
    EXPECT_TRUE(outcome.messages.empty());
    EXPECT_TRUE(outcome.argumentIsNull);
    EXPECT_EQ(outcome.events.at(1), L"pointer 11");
    EXPECT_EQ(outcome.events.at(2), L"ini file");
    EXPECT_EQ(outcome.LastEvents(2), (Texts{L"ini file released", L"pointer 5"}));
    ASSERT_GE(outcome.operations.size(), 5U);
    EXPECT_EQ(
        Texts(outcome.operations.begin(), outcome.operations.begin() + 4),
        (Texts{L"FileName \"probe.ini\"", L"Section \"Probe\"", L"Hold", L"WriteString Version=\"1.0\""}));
    EXPECT_EQ(outcome.operations.back(), L"Release");
    EXPECT_EQ(outcome.Count(L"FileName \"probe.ini\""), 1) << "nested records share the object";
    EXPECT_EQ(std::count(outcome.events.begin(), outcome.events.end(), L"ini file"), 1);
}

TEST_P(QuorObjectTest, LoadsWhatWasSavedThroughAnIniFileObjectOfItsOwn) {
    const Outcome outcome = Load(OtherValues(Save().values));
    EXPECT_TRUE(outcome.complete);
    EXPECT_TRUE(outcome.messages.empty());
    EXPECT_TRUE(outcome.argumentIsNull);
    EXPECT_EQ(outcome.events.at(1), L"pointer 11");
    EXPECT_EQ(outcome.events.at(2), L"ini file");
    EXPECT_EQ(outcome.LastEvents(2), (Texts{L"ini file released", L"pointer 5"}));
    EXPECT_EQ(outcome.operations.at(0), L"FileName \"probe.ini\"");
    EXPECT_EQ(outcome.operations.at(1), L"Section \"Probe\"");
    EXPECT_EQ(outcome.Count(L"Hold") + outcome.Count(L"Release"), 0);
}

TEST_P(QuorObjectTest, TellsTheUserThenReleasesTheIniFileObjectThenRestoresThePointer) {
    const auto story = [](const std::wstring& message) {
        return Texts{L"pointer 0", L"message " + message, L"ini file released", L"pointer 5"};
    };
    const auto report = [](const wchar_t* activity) {
        return ErrorReport(activity, 57, L"Device I/O error: memory", L"QuorIniFile");
    };
    EXPECT_EQ(Save(1).LastEvents(4), story(report(writingSettings)));
    EXPECT_EQ(Load({}, 1).LastEvents(4), story(report(readingSettings)));
    EXPECT_EQ(Load({}).LastEvents(4), story(versionMessage));
}

TEST_P(QuorObjectTest, UsesTheIniFileObjectThatItIsGiven) {
    const auto platform = std::make_shared<ScriptedPlatform>();
    const auto object = GetParam().make(platform);
    const auto memory = std::make_shared<MemoryIniFile>();
    std::shared_ptr<INIFile> ini = memory;
    object->WriteToFile(ini, L"ignored.ini", L"Probe");
    EXPECT_EQ(ini, memory);
    EXPECT_EQ(memory->operations.at(0), L"Section \"Probe\"");
    memory->operations.clear();
    EXPECT_TRUE(object->ReadFromFile(ini, L"ignored.ini", L"Probe"));
    EXPECT_EQ(ini, memory);
    EXPECT_EQ(memory->operations.at(0), L"Section \"Probe\"");
    memory->failAt = memory->operations.size();
    object->WriteToFile(ini, L"", L"Probe");
    EXPECT_EQ(ini, memory) << "it stays with the host on failure too";
    EXPECT_EQ(platform->Messages().size(), 1U);
}

TEST_P(QuorObjectTest, ReportsThatThereIsNeitherAnIniFileObjectNorAName) {
    ExpectReports(L"", 52, L"Bad file name or number");
}

TEST_P(QuorObjectTest, ReportsThatThePlatformMakesNoIniFileObject) {
    ExpectReports(L"probe.ini", 429, L"The INI-file component cannot be created: probe.ini");
}

TEST_P(QuorObjectTest, ReportsAFailedWriteOnceWhicheverOperationFails) {
    const Texts operations = Save().operations;
    ASSERT_FALSE(operations.empty());
    for (std::size_t n = 0; n < operations.size(); ++n) {
        SCOPED_TRACE(QuorIniFile::ToUtf8(operations[n]));
        const Outcome outcome = Save(n);
        EXPECT_EQ(outcome.messages,
                  (Texts{ErrorReport(writingSettings, 57, L"Device I/O error: memory", L"QuorIniFile")}));
        EXPECT_TRUE(outcome.argumentIsNull);
        EXPECT_EQ(outcome.LastEvents(2), (Texts{L"ini file released", L"pointer 5"}));
        // Every bracket is closed once, and one that could not be opened is not closed.
        const auto refused = operations[n] == L"Hold" ? 1 : 0;
        EXPECT_EQ(outcome.Count(L"Hold") - refused, outcome.Count(L"Release"));
    }
}

TEST_P(QuorObjectTest, ReportsAFailedReadOnceAndTheRecordsAroundItAsIncomplete) {
    const Values stored = Save().values;
    const Texts operations = Load(stored).operations;
    std::wstring section;
    ASSERT_FALSE(operations.empty());
    for (std::size_t n = 0; n < operations.size(); ++n) {
        SCOPED_TRACE(QuorIniFile::ToUtf8(operations[n]));
        if (operations[n].find(L"Section") == 0)
            section = operations[n];
        Texts expected(1 + Depth(section), versionMessage);
        expected[0] = ErrorReport(readingSettings, 57, L"Device I/O error: memory", L"QuorIniFile");
        const Outcome outcome = Load(stored, n);
        EXPECT_FALSE(outcome.complete);
        EXPECT_EQ(outcome.messages, expected);
        EXPECT_TRUE(outcome.argumentIsNull);
        EXPECT_EQ(outcome.LastEvents(2), (Texts{L"ini file released", L"pointer 5"}));
    }
}

TEST_P(QuorObjectTest, KeepsItsOwnValueForAMissingKeyAndTakesTheOthers) {
    const Values own = OwnValues();
    const Values stored = OtherValues(own);
    for (const auto& [place, value] : stored) {
        if (place.second == L"Version" || place.second == L"ConversionType") // tested on their own
            continue;
        SCOPED_TRACE(QuorIniFile::ToUtf8(place.first + L": " + place.second));
        Values expected = stored;
        expected[place] = own.at(place);
        EXPECT_EQ(LoadWithout(stored, place, false), expected);
    }
}

TEST_P(QuorObjectTest, TakesWhatTheStoreLeavesForAMissingKey) {
    const Values stored = OtherValues(OwnValues());
    for (const auto& [place, value] : stored) {
        Values expected = stored;
        if (std::holds_alternative<double>(value))
            expected[place] = 7.5;
        else if (std::holds_alternative<std::wstring>(value) && place.second != L"Version")
            expected[place] = std::wstring(L"scribble");
        else
            continue; // counts and codes shape the rest of the record
        SCOPED_TRACE(QuorIniFile::ToUtf8(place.first + L": " + place.second));
        EXPECT_EQ(LoadWithout(stored, place, true), expected);
    }
}

TEST_P(QuorObjectTest, NeverLooksAtTheVersion) {
    Values stored = Save().values;
    for (auto& [place, value] : stored)
        if (place.second == L"Version")
            value = std::wstring(L"99.5");
    EXPECT_TRUE(Load(stored).complete);
    std::erase_if(stored, [](const auto& each) { return each.first.second == L"Version"; });
    const Outcome outcome = Load(stored);
    EXPECT_TRUE(outcome.complete);
    EXPECT_EQ(outcome.Count(L"ReadString Version"), 0);
}

namespace {

class FrameTest : public testing::Test {
protected:
    std::shared_ptr<ScriptedPlatform> platform = std::make_shared<ScriptedPlatform>();
    CQuorConversion conversion{platform};
    std::shared_ptr<MemoryIniFile> memory = std::make_shared<MemoryIniFile>();
    std::shared_ptr<INIFile> ini = memory;
};

} // namespace

TEST_F(FrameTest, ReportsEveryKindOfException) {
    const struct {
        const char* name;
        std::function<void()> fail;
        std::int32_t number;
        const wchar_t* description;
        const wchar_t* source;
    } cases[] = {
        {"numbered", [] { throw QuorError(70, L"HostStore", L"Permission denied: x.ini"); }, 70,
         L"Permission denied: x.ini", L"HostStore"},
        {"no memory", [] { throw std::bad_alloc(); }, 7, L"Out of memory", L"CQuorConversion"},
        {"standard", [] { throw std::runtime_error("disk on fire"); }, -2147467259, L"disk on fire",
         L"CQuorConversion"},
        {"UTF-8",
         [] {
             throw std::runtime_error("20 \xC2\xB0"
                                      "C");
         },
         -2147467259, L"20 \u00B0C", L"CQuorConversion"},
        {"wordless", [] { throw std::runtime_error(""); }, -2147467259, L"A system error has occurred",
         L"CQuorConversion"},
        {"foreign", [] { throw 42; }, -2147467259, L"A system error has occurred", L"CQuorConversion"},
    };
    Texts expected;
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        const auto failing = std::make_shared<FailingIniFile>();
        failing->fail = each.fail;
        ini = failing;
        EXPECT_NO_THROW(conversion.WriteToFile(ini, L"", L"Probe"));
        EXPECT_NO_THROW(EXPECT_FALSE(conversion.ReadFromFile(ini, L"", L"Probe")));
        expected.push_back(ErrorReport(writingSettings, each.number, each.description, each.source));
        expected.push_back(ErrorReport(readingSettings, each.number, each.description, each.source));
        EXPECT_EQ(MessageTexts(*platform), expected);
    }
}

TEST_F(FrameTest, GivesTheReportsItsTitleItsIconAndTheHelpOfTheError) {
    const auto failing = std::make_shared<FailingIniFile>();
    failing->fail = [] { throw QuorError(70, L"HostStore", L"Permission denied", L"store.hlp", 12); };
    ini = failing;
    conversion.WriteToFile(ini, L"", L"Probe");
    const MessageRequest& report = platform->Messages().at(0);
    EXPECT_EQ(report.title, L"Quor Scientific");
    EXPECT_EQ(report.icon, ICON_CRITICAL);
    EXPECT_EQ(report.helpFile, L"store.hlp");
    EXPECT_EQ(report.helpContext, 12);
}

TEST_F(FrameTest, ReportsAFailureOfThePlatformToMakeAnIniFileObject) {
    const auto broken = std::make_shared<BrokenPlatform>("CreateIniFile");
    CQuorConversion other(broken);
    broken->SetMousePointer(hostShape);
    ini = nullptr;
    EXPECT_NO_THROW(EXPECT_FALSE(other.ReadFromFile(ini, L"probe.ini", L"Probe")));
    EXPECT_EQ(MessageTexts(*broken),
              (Texts{ErrorReport(readingSettings, 70, L"Permission denied", L"Host")}));
    EXPECT_EQ(ini, nullptr);
    EXPECT_EQ(broken->MousePointer(), hostShape);
}

TEST_F(FrameTest, SavesAndLoadsOnAPlatformThatCannotShowIt) {
    for (const char* const function : {"ShowMessage", "MousePointer", "SetMousePointer"}) {
        SCOPED_TRACE(function);
        CQuorConversion other(std::make_shared<BrokenPlatform>(function));
        other.SetConversionType(CONV_CVD);
        EXPECT_NO_THROW(other.WriteToFile(ini, L"", L"Probe"));
        EXPECT_TRUE(memory->Has(L"Probe - Settings", L"Coefficients3"));
        EXPECT_NO_THROW(EXPECT_TRUE(other.ReadFromFile(ini, L"", L"Probe")));
        EXPECT_NO_THROW(EXPECT_FALSE(other.ReadFromFile(ini, L"", L"Nowhere")));
        memory->values.clear();
    }
}

TEST_F(FrameTest, EndsAReadWithTheErrorAloneAlsoBehindAMissingKey) {
    const auto cvd = Support::NewSettings<CQuorCVD>(CONV_CVD, platform);
    memory->Set(L"Probe", L"NumCoefficients", std::int16_t{4});
    memory->Set(L"Probe", L"Coefficients0", 100.5);
    memory->failAt = 4; // Section, NumCoefficients, UsePolynomial (missing), Coefficients0, Coefficients1
    EXPECT_FALSE(cvd->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(MessageTexts(*platform),
              (Texts{ErrorReport(readingSettings, 57, L"Device I/O error: memory", L"QuorIniFile")}));
    EXPECT_EQ(cvd->Coefficients(CVD_R0), 100.5); // there is no rollback
}

TEST_F(FrameTest, WritesCodesOf16BitsAndRefusesOthers) {
    for (const std::int32_t code : {32767, -32768}) {
        conversion.SetConversionType(EQuorConversionType{code});
        conversion.WriteToFile(ini, L"", L"Probe");
        EXPECT_EQ(memory->values.at({L"Probe", L"ConversionType"}),
                  MemoryIniFile::Value(static_cast<std::int16_t>(code)));
    }
    Texts expected;
    EXPECT_EQ(MessageTexts(*platform), expected);
    for (const std::int32_t code : {32768, -32769, 70000}) {
        memory->values.clear();
        conversion.SetConversionType(EQuorConversionType{code});
        conversion.WriteToFile(ini, L"", L"Probe");
        expected.push_back(ErrorReport(writingSettings, 6, L"Overflow", L"CQuorConversion"));
        EXPECT_EQ(MessageTexts(*platform), expected);
        EXPECT_TRUE(memory->Has(L"Probe", L"Version")); // the file keeps what was written before
        EXPECT_FALSE(memory->Has(L"Probe", L"ConversionType"));
    }
}

TEST_F(FrameTest, DoesNotCutACodeBeyond16BitsWhenItsKeyIsMissing) {
    const auto ipts68 = Support::NewSettings<CQuorIPTS68>(CONV_IPTS68, platform);
    ipts68->SetIPTS68Scale(EIPTS68Scale{70000});
    EXPECT_FALSE(ipts68->ReadFromFile(ini, L"", L"Probe"));
    EXPECT_EQ(ipts68->IPTS68Scale(), EIPTS68Scale{70000});
}

TEST_F(FrameTest, KeepsTheIniFileObjectThatTheHostDropsInsideAMessageBox) {
    conversion.SetConversionType(CONV_ITS90);
    for (const bool save : {true, false}) {
        SCOPED_TRACE(save);
        Outcome outcome;
        {
            const auto fleeting = std::make_shared<FleetingIniFile>(*platform, outcome);
            fleeting->failAt = 9; // in the high range; the low range is still to come
            ini = fleeting;
        }
        platform->WhileMessageIsShown([&] {
            ini = nullptr;
            EXPECT_TRUE(outcome.operations.empty()) << "it has been released under the call";
        });
        if (save)
            conversion.WriteToFile(ini, L"", L"Probe");
        else
            EXPECT_FALSE(conversion.ReadFromFile(ini, L"", L"Probe"));
        EXPECT_EQ(ini, nullptr);
        EXPECT_EQ(outcome.Count(L"Section \"Probe - Settings - Low Range\""), 1);
    }
}
