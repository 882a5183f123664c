#include "tests/component/EveryMember.h"

#include "tests/component/Component.h"
#include "tests/support/TempFolder.h"

#include <cmath>
#include <fstream>
#include <iterator>
#include <set>

quor_object sample_Registry = 0;
quor_object sample_INIFile = 0;
quor_object sample_ListControl = 0;
quor_object sample_Control = 0;
quor_object sample_CQuorConversion = 0;
quor_object sample_ProbeFile = 0;

namespace {

struct Outcome {
    int calls = 0;
    int successes = 0;
};
std::map<std::string, Outcome> outcomes;

/// The current folder is an empty one of the test's own.
class InFolder {
public:
    InFolder() : m_before(std::filesystem::current_path()) { std::filesystem::current_path(m_folder.Path()); }
    InFolder(const InFolder&) = delete;
    InFolder& operator=(const InFolder&) = delete;
    ~InFolder() { std::filesystem::current_path(m_before); }

private:
    TempFolder m_folder;
    std::filesystem::path m_before;
};

/// It has a problem, of which the reading of its probe knows nothing.
const std::string fileOfProbes =
    "[sample]\nVersion=1.0\nConversionType=2\nNoKey=1\n"
    "[sample - Settings]\nVersion=1.0\nNumCoefficients=4\nUsePolynomial=False\n"
    "Coefficients0=100\nCoefficients1=0.0039\nCoefficients2=1.5\nCoefficients3=0.1\n";

void FileOfProbes(const std::string& text) { std::ofstream("probes.ini", std::ios::binary) << text; }

std::string FileOfProbes() {
    std::ifstream file("probes.ini", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Calls the members of the dialog, and of each of its controls.
std::int32_t CallAllInDialog(RecordingPlatform& platform, quor_object dialog) {
    if (std::exchange(platform.more, nullptr) == nullptr) { // a dialog that Edit opens meanwhile
        return quor_dialog_Escape(dialog);
    }
    EXPECT_EQ(quor_dialog_Activate(dialog), 0);
    std::int32_t count = 0;
    EXPECT_EQ(quor_dialog_get_ControlCount(dialog, &count), 0);
    EXPECT_EQ(quor_dialog_SetPlace(dialog, 3, 4), 0);
    for (std::int32_t i = 0; i < count; ++i) {
        Handle control;
        EXPECT_EQ(quor_dialog_get_Controls(dialog, i, &control), 0);
        every_member_of_control(control);
    }
    for (const char* const name : {"txtRTPW", "cmdOKCancelHelp(2)", "cboLowRange", "tabRange"}) {
        const Handle control = Find(dialog, name);
        EXPECT_NE(control, 0U) << name;
        sample_Control = control;
        every_member_of_dialog(dialog);
    }
    sample_Control = 0;
    return quor_dialog_Close(dialog);
}

} // namespace

void before_call() {
    if (sample_ProbeFile != 0 && FileOfProbes() != fileOfProbes) {
        FileOfProbes(fileOfProbes);
        EXPECT_EQ(quor_probe_file_Reload(sample_ProbeFile), 0);
    }
}

int32_t by_name(quor_object object, const char* name, int32_t kind, quor_value* args, int32_t n,
                quor_value* result) {
    std::string shouted = name;
    for (char& c : shouted)
        c = static_cast<char>(std::toupper(c));
    std::int32_t id = 0;
    EXPECT_EQ(quor_id_of_name(object, Text(shouted), &id), 0) << name;
    return quor_invoke(object, id, kind, args, n, result);
}

int same_text(quor_text typed, quor_text named) { return Seen(typed) == Seen(named) ? 1 : 0; }

int same_number(double typed, double named) { return std::memcmp(&typed, &named, sizeof typed) == 0 ? 1 : 0; }

int same_class(quor_object typed, quor_object named) {
    const char* one = nullptr;
    const char* other = nullptr;
    EXPECT_EQ(quor_class_of(typed, &one), 0);
    EXPECT_EQ(quor_class_of(named, &other), 0);
    return one == other ? 1 : 0;
}

void check(int32_t typed, int32_t named, int gives_the_same, const char* function) {
    EXPECT_EQ(typed, named) << function;
    EXPECT_TRUE(typed != 0 || gives_the_same != 0) << function;
    ++outcomes[function].calls;
    outcomes[function].successes += typed == 0 ? 1 : 0;
}

TEST(EveryMember, IsCalledByItsTypedFunctionAndByNameAndGivesTheSame) {
    const std::int32_t before = HandleCount();
    {
        const InFolder folder;
        RecordingPlatform host;
        host.runDialog = CallAllInDialog;
        host.answer = "answer.ini";
        const Handle platform = host.Make();
        MapRegistry mapRegistry;
        ListOfItems list;
        MapIniFile mapIniFile;
        const Handle registry = mapRegistry.Make();
        const Handle listControl = list.Make();
        const Handle hostIniFile = mapIniFile.Make();
        Handle iniFile, builtInRegistry;
        ASSERT_EQ(quor_inifile_create(&iniFile), 0);
        ASSERT_EQ(quor_registry_create(Text("sample"), Text("sample-folder"), &builtInRegistry), 0);
        sample_Registry = registry;
        sample_ListControl = listControl;
        sample_INIFile = hostIniFile;

        for (int pass = 0; pass < 2; ++pass) { // what was written in the first is found in the second
            every_member_of_inifile(hostIniFile);
            every_member_of_inifile(iniFile);
            every_member_of_registry(registry);
            every_member_of_registry(builtInRegistry);
            every_member_of_list_control(listControl);
            every_member_of_conversion(Conversion(QUOR_CONV_CVD, platform));

            FileOfProbes(fileOfProbes);
            const Handle read = Conversion(QUOR_CONV_CVD);
            Handle probeFile, table;
            ASSERT_EQ(quor_probe_file_create(Text("probes.ini"), 0, &probeFile), 0);
            ASSERT_EQ(quor_probe_file_ReadAll(probeFile, &table), 0);
            sample_CQuorConversion = read;
            sample_ProbeFile = probeFile;
            every_member_of_probe_file(probeFile);
            every_member_of_probe_table(table);
            sample_CQuorConversion = sample_ProbeFile = 0;

            const auto settings = [&](quor_EQuorConversionType type, void (*all)(quor_object)) {
                const Handle conversion = Conversion(type, platform);
                all(SettingsOf(conversion));
            };
            settings(QUOR_CONV_IPTS68, every_member_of_ipts68);
            settings(QUOR_CONV_CVD, every_member_of_cvd);
            settings(QUOR_CONV_PT100R0, every_member_of_pt100);
            settings(QUOR_CONV_HTPRT, every_member_of_htprt);
            settings(QUOR_CONV_WT90, every_member_of_wt90);
            settings(QUOR_CONV_THERMISTORR_T, every_member_of_thermistor);
            settings(QUOR_CONV_POLYNOMIAL, every_member_of_polynomial);
            settings(QUOR_CONV_TCPOLYNOMIAL, every_member_of_tc_polynomial);
            settings(QUOR_CONV_TCTABLE, every_member_of_tc_table);
            settings(QUOR_CONV_TCTYPEX, every_member_of_tc_typex);
            settings(QUOR_CONV_TCTYPEPOLY, every_member_of_tc_typepoly);
            Handle pt100, typePoly;
            ASSERT_EQ(quor_pt100_create(platform, &pt100), 0);
            ASSERT_EQ(quor_tc_typepoly_create(platform, &typePoly), 0);
            every_member_of_pt100(pt100);
            every_member_of_tc_typepoly(typePoly);

            const Handle conversion = Conversion(QUOR_CONV_ITS90, platform);
            const Handle its90 = SettingsOf(conversion);
            every_member_of_its90(its90);
            Handle low, high;
            ASSERT_EQ(quor_its90_get_LowRange(its90, &low), 0);
            ASSERT_EQ(quor_its90_get_HighRange(its90, &high), 0);
            ASSERT_EQ(quor_its90_high_range_put_Range(high, QUOR_ITS90_RANGE_6), 0);
            every_member_of_its90_low_range(low);
            every_member_of_its90_high_range(high);
            // In the dialog that this shows, those of the dialog and of its controls.
            host.more = &host;
            std::int16_t accepted = 0;
            ASSERT_EQ(quor_its90_Edit(its90, &accepted), 0);
        }
        sample_Registry = sample_ListControl = sample_INIFile = 0;
        Handle conversion;
        ASSERT_EQ(quor_conversion_create(0, &conversion), 0);
        ASSERT_EQ(quor_conversion_put_HelpFile(conversion, Text("")), 0);
    }
    EXPECT_EQ(HandleCount(), before);
    EXPECT_EQ(static_cast<int>(outcomes.size()), every_member_count);
    std::set<std::string> never;
    for (const auto& [function, outcome] : outcomes)
        if (outcome.successes == 0)
            never.insert(function);
    // The sample of an ITS-90 range, 1, is none of the high side; a file that nothing is wrong with has no
    // rows of it.
    EXPECT_EQ(never,
              (std::set<std::string>{"quor_its90_high_range_put_Range", "quor_probe_file_get_Messages",
                                     "quor_probe_file_get_ConflictSection", "quor_probe_file_get_ConflictKey",
                                     "quor_probe_file_get_ConflictRead", "quor_probe_file_get_ConflictTheirs",
                                     "quor_probe_file_get_ConflictOurs"}));
}
