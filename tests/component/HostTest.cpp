// What a host offers through tables of functions: INI files, registries, lists, messages, file dialogs.

#include "tests/component/Component.h"
#include "tests/support/TempFolder.h"

namespace {

class Host : public ComponentTest {};

} // namespace

TEST_F(Host, ItsIniFileHoldsARecord) {
    MapIniFile store;
    {
        const Handle conversion = Conversion(QUOR_CONV_CVD);
        const Handle cvd = SettingsOf(conversion);
        ASSERT_EQ(quor_cvd_put_Coefficients(cvd, QUOR_CVD_R0, 100.0123), 0);
        ASSERT_EQ(quor_cvd_put_UsePolynomial(cvd, 1), 0);
        Handle file = store.Make();
        const quor_object same = file;
        ASSERT_EQ(quor_conversion_WriteToFile(conversion, &file, Text(""), Text("Probe")), 0);
        EXPECT_EQ(file, same);

        EXPECT_EQ((store.texts[{"Probe", "Version"}]), "1.0");
        EXPECT_EQ((store.numbers[{"Probe", "ConversionType"}]), QUOR_CONV_CVD);
        EXPECT_EQ((store.numbers[{"Probe - Settings", "NumCoefficients"}]), 4);
        EXPECT_EQ((store.numbers[{"Probe - Settings", "UsePolynomial"}]), -1);
        EXPECT_EQ((store.numbers[{"Probe - Settings", "Coefficients0"}]), 100.0123);
        EXPECT_EQ(store.brackets, (std::vector<std::string>{"hold", "hold", "release", "release"}));

        Handle other;
        ASSERT_EQ(quor_conversion_create(0, &other), 0);
        std::int16_t complete = 0;
        ASSERT_EQ(quor_conversion_ReadFromFile(other, &file, Text(""), Text("Probe"), &complete), 0);
        EXPECT_EQ(complete, -1);
        const Handle read = SettingsOf(other);
        double r0 = 0;
        std::int16_t polynomial = 0;
        ASSERT_EQ(quor_cvd_get_Coefficients(read, QUOR_CVD_R0, &r0), 0);
        ASSERT_EQ(quor_cvd_get_UsePolynomial(read, &polynomial), 0);
        EXPECT_EQ(r0, 100.0123);
        EXPECT_EQ(polynomial, -1);
    }
    EXPECT_EQ(store.destroyed, 1);
}

TEST_F(Host, ItsIniFileMayClearAValueThatItDoesNotFind) {
    MapIniFile host;
    quor_inifile_functions functions = MapIniFile::Functions();
    functions.read_boolean = [](void*, quor_text, std::int16_t* value, std::int16_t* found) {
        return *value = *found = 0, 0;
    };
    functions.read_double = [](void*, quor_text, double* value, std::int16_t* found) {
        return *value = 0, *found = 0, 0;
    };
    functions.read_integer = [](void*, quor_text key, std::int16_t* value, std::int16_t* found) {
        return *value = Seen(key) == "ConversionType" ? 2 : 0, *found = 0, 0;
    };
    Handle file;
    ASSERT_EQ(quor_inifile_from_host(&functions, &host, &file), 0);
    const Handle conversion = Conversion(QUOR_CONV_CVD);
    const Handle cvd = SettingsOf(conversion);
    ASSERT_EQ(quor_cvd_put_Coefficients(cvd, QUOR_CVD_R0, 100.0123), 0);
    ASSERT_EQ(quor_cvd_put_UsePolynomial(cvd, -1), 0);
    std::int16_t whole = -1;
    quor_object given = file;
    ASSERT_EQ(quor_conversion_ReadFromFile(conversion, &given, {}, Text("P"), &whole), 0);
    EXPECT_EQ(whole, 0);
    double ohms = 0;
    std::int16_t count = 0, isPolynomial = 0;
    EXPECT_EQ(quor_cvd_get_NumCoefficients(cvd, &count), 0);
    EXPECT_EQ(count, 4);
    EXPECT_EQ(quor_cvd_get_Coefficients(cvd, QUOR_CVD_R0, &ohms), 0);
    EXPECT_EQ(ohms, 100.0123);
    EXPECT_EQ(quor_cvd_get_UsePolynomial(cvd, &isPolynomial), 0);
    EXPECT_EQ(isPolynomial, -1);
    // The type is what the host has put in its place.
    const Handle other = Conversion(QUOR_CONV_OHMS);
    ASSERT_EQ(quor_conversion_ReadFromFile(other, &given, {}, Text("P"), &whole), 0);
    std::int32_t type = 0;
    EXPECT_EQ(quor_conversion_get_ConversionType(other, &type), 0);
    EXPECT_EQ(type, QUOR_CONV_CVD);
}

TEST_F(Host, ItsErrorNumberIsWhatTheUserIsTold) {
    RecordingPlatform host;
    MapIniFile store;
    const Handle platform = host.Make();
    const Handle conversion = Conversion(QUOR_CONV_OHMS, platform);
    Handle file = store.Make();
    store.failWith = 61;
    ASSERT_EQ(quor_conversion_WriteToFile(conversion, &file, Text(""), Text("Probe")), 0);
    store.setsError = true;
    ASSERT_EQ(quor_conversion_WriteToFile(conversion, &file, Text(""), Text("Probe")), 0);
    EXPECT_EQ(host.events,
              (std::vector<std::string>{
                  "pointer 11", "pointer 0",
                  "Quor Scientific, 16: An error occurred while attempting to write settings.\r\r"
                  "Error: 61 - The host reports error 61\r(INIFile of the host)",
                  "pointer 0", "pointer 11", "pointer 0",
                  "Quor Scientific, 16: An error occurred while attempting to write settings.\r\r"
                  "Error: 61 - The disk is on fire\r(Store)",
                  "pointer 0"}));
    EXPECT_EQ(store.brackets, (std::vector<std::string>{"hold", "abandon", "hold", "abandon"}));
}

TEST_F(Host, ItsErrorComesBackFromACallWithItsWords) {
    MapIniFile store;
    const Handle file = store.Make();
    store.failWith = -12345;
    double value = 0;
    EXPECT_EQ(quor_inifile_ReadDouble(file, Text("R0"), &value, nullptr), -12345);
    EXPECT_EQ(LastError(), (Error{-12345, "INIFile of the host", "The host reports error -12345"}));
    store.setsError = true;
    EXPECT_EQ(quor_inifile_ReadDouble(file, Text("R0"), &value, nullptr), -12345);
    EXPECT_EQ(LastError(), (Error{-12345, "Store", "The disk is on fire"}));
    quor_error error{};
    ASSERT_EQ(quor_last_error(&error), 0);
    EXPECT_EQ(Seen(error.help_file), "host.hlp");
    EXPECT_EQ(error.help_context, 77);
    // Words of an earlier error of that number are not those of this one.
    store.setsError = false;
    EXPECT_EQ(quor_inifile_ReadDouble(file, Text("R0"), &value, nullptr), -12345);
    EXPECT_EQ(LastError(), (Error{-12345, "INIFile of the host", "The host reports error -12345"}));
}

TEST_F(Host, AnErrorOfThisInterfaceInsideItsFunctionKeepsItsWords) {
    MapRegistry host;
    quor_registry_functions functions = MapRegistry::Functions();
    functions.write_value = [](void*, quor_text, quor_text, quor_text) {
        return quor_inifile_WriteString(0, quor_text_of("k"), quor_text_of("v"));
    };
    Handle registry;
    ASSERT_EQ(quor_registry_from_host(&functions, &host, &registry), 0);
    EXPECT_EQ(quor_registry_WriteValue(registry, Text("s"), Text("n"), Text("v")), QUOR_ERROR_NO_OBJECT);
    EXPECT_EQ(LastError().description, "Invalid handle: it was never given out, or it was released");
}

TEST_F(Host, TextsWithoutAnAnswerAreEmptyAndNotFoundOnesAreLeft) {
    MapRegistry host;
    const Handle registry = host.Make();
    std::int16_t found = -1;
    quor_text value{};
    ASSERT_EQ(quor_registry_ReadValue(registry, Text("Window"), Text("Left"), Text("12"), &value, &found), 0);
    EXPECT_EQ(found, 0);
    EXPECT_EQ(Taken(value), "12");
    ASSERT_EQ(quor_registry_WriteValue(registry, Text("Window"), Text("Left"), Text("\xE2\x86\x90")), 0);
    ASSERT_EQ(quor_registry_ReadValue(registry, Text("Window"), Text("Left"), Text("12"), &value, &found), 0);
    EXPECT_EQ(found, -1);
    EXPECT_EQ(Taken(value), "\xE2\x86\x90");
}

TEST_F(Host, ItsListIsFilled) {
    ListOfItems list;
    {
        const Handle control = list.Make();
        const Handle its90 = SettingsOf(Conversion(QUOR_CONV_ITS90));
        Handle low;
        ASSERT_EQ(quor_its90_get_LowRange(its90, &low), 0);
        ASSERT_EQ(quor_its90_low_range_FillRangeCombo(low, control), 0);
        EXPECT_EQ(list.items,
                  (std::vector<std::pair<std::string, std::int32_t>>{{"<none>", -1},
                                                                     {"Range 1 (13K to 273K)", 1},
                                                                     {"Range 2 (24K to 273K)", 2},
                                                                     {"Range 3 (54K to 273K)", 3},
                                                                     {"Range 4 (83K to 273K)", 4},
                                                                     {"Range 5 (234K to 302K)", 5}}));
        EXPECT_EQ(quor_its90_low_range_FillRangeCombo(low, 0), QUOR_ERROR_NO_OBJECT);
        EXPECT_EQ(quor_list_control_put_ItemData(control, 99, 1), 9);
    }
    EXPECT_EQ(list.destroyed, 1);
}

TEST_F(Host, ItsFileDialogChoosesTheFile) {
    RecordingPlatform host;
    const TempFolder folder;
    host.answer = folder.Path("prt.pt1").string();
    const Handle platform = host.Make();
    Handle pt100;
    ASSERT_EQ(quor_pt100_create(platform, &pt100), 0);
    quor_text chosen{};
    std::int16_t saved = 0;
    ASSERT_EQ(quor_pt100_SaveFileAs(pt100, 17, Text(""), &chosen, &saved), 0);
    EXPECT_EQ(saved, -1);
    EXPECT_EQ(Taken(chosen), host.answer);
    EXPECT_EQ(host.events.front(), "1 Save PT100 File As | PT100 Files (*.pt1)|*.pt1 | *.pt1 of 17");
    EXPECT_EQ(folder.Read("prt.pt1"),
              "[Callendar-Van Dusen]\nVersion=1.0\nNumCoefficients=1\nCoefficients0=0\n");

    host.answer.clear();
    ASSERT_EQ(quor_pt100_OpenFile(pt100, 17, Text(""), &chosen, &saved), 0);
    EXPECT_EQ(saved, 0);
    EXPECT_EQ(Taken(chosen), "");
}

TEST_F(Host, ItsPlatformMakesTheIniFiles) {
    struct WithStore : RecordingPlatform {
        MapIniFile store;
    } host;
    quor_platform_functions functions = RecordingPlatform::Functions();
    functions.create_ini_file = [](void* user, quor_object* result) {
        const quor_inifile_functions inifile = MapIniFile::Functions();
        auto& platform = static_cast<WithStore&>(RecordingPlatform::Of(user));
        return quor_inifile_from_host(&inifile, &platform.store, result);
    };
    const Handle platform = host.Make(functions);
    const Handle conversion = Conversion(QUOR_CONV_OHMS, platform);
    ASSERT_EQ(quor_conversion_WriteToFile(conversion, nullptr, Text("somewhere.ini"), Text("Probe")), 0);
    EXPECT_EQ(host.store.fileName, "somewhere.ini");
    EXPECT_EQ((host.store.numbers[{"Probe", "ConversionType"}]), QUOR_CONV_OHMS);
    EXPECT_EQ(host.store.destroyed, 1);
}

TEST_F(Host, ATableMayBeOfAnOlderOrANewerHost) {
    RecordingPlatform host;
    quor_platform_functions functions = RecordingPlatform::Functions();
    functions.size =
        offsetof(quor_platform_functions, show_message); // what stands behind it is not looked at
    const Handle older = host.Make(functions);
    std::int16_t complete = -1;
    testing::internal::CaptureStderr();
    ASSERT_EQ(quor_conversion_ReadFromFile(Conversion(QUOR_CONV_OHMS, older), nullptr,
                                           Text("/nonexistent/x.ini"), Text("Probe"), &complete),
              0);
    EXPECT_EQ(testing::internal::GetCapturedStderr().substr(0, 40),
              "Quor Scientific: An error occurred while");
    EXPECT_EQ(host.events, std::vector<std::string>{});

    struct Newer {
        quor_registry_functions known;
        void (*unknown)();
    } newer{MapRegistry::Functions(), nullptr};
    newer.known.size = sizeof newer;
    MapRegistry registry;
    Handle made;
    EXPECT_EQ(quor_registry_from_host(&newer.known, &registry, &made), 0);
}

TEST_F(Host, ATableThatLacksWhatMustStandInItIsRefused) {
    quor_object made = 0;
    quor_inifile_functions inifile = MapIniFile::Functions();
    inifile.get_section = nullptr;
    MapIniFile store;
    EXPECT_EQ(quor_inifile_from_host(&inifile, &store, &made), QUOR_ERROR_ARGUMENT);
    EXPECT_EQ(LastError(), (Error{5, "quor", "A required function of the table is NULL"}));
    EXPECT_EQ(quor_platform_from_host(nullptr, nullptr, &made), QUOR_ERROR_ARGUMENT);
    EXPECT_EQ(LastError(), (Error{5, "quor", "The table of functions is NULL, or its size is not set"}));
    const quor_platform_functions noSize{};
    EXPECT_EQ(quor_platform_from_host(&noSize, nullptr, &made), QUOR_ERROR_ARGUMENT);
    const quor_registry_functions registry = MapRegistry::Functions();
    MapRegistry host;
    EXPECT_EQ(quor_registry_from_host(&registry, &host, nullptr), QUOR_ERROR_ARGUMENT);
    EXPECT_EQ(made, 0U);
    EXPECT_EQ(store.destroyed + host.destroyed, 0);
}

TEST_F(Host, ItsPlatformLivesAsLongAsAnObjectThatWasMadeWithIt) {
    RecordingPlatform host;
    {
        const Handle conversion = Conversion(QUOR_CONV_CVD, host.Make());
        EXPECT_EQ(host.destroyed, 0);
    }
    EXPECT_EQ(host.destroyed, 1);
}

TEST_F(Host, ThatCallsBackWhileItIsDestroyedFindsTheTableUsable) {
    MapRegistry host;
    quor_registry_functions functions = MapRegistry::Functions();
    functions.destroyed = [](void* user) {
        ++MapRegistry::Of(user).destroyed;
        std::int32_t count = -1;
        EXPECT_EQ(quor_handle_count(&count), 0);
        Handle other;
        EXPECT_EQ(quor_conversion_create(0, &other), 0);
    };
    Handle registry;
    ASSERT_EQ(quor_registry_from_host(&functions, &host, &registry), 0);
    registry.Release();
    EXPECT_EQ(host.destroyed, 1);
}

TEST_F(Host, FindsWhatItHasOfferedBehindAHandleThatComesBack) {
    MapRegistry registry;
    const Handle conversion = Conversion(QUOR_CONV_CVD);
    {
        Handle handed = registry.Make();
        ASSERT_EQ(quor_conversion_SetRegistry(conversion, &handed), 0);
    }
    Handle back, builtIn;
    ASSERT_EQ(quor_conversion_get_Registry(conversion, &back), 0);
    void* user = nullptr;
    ASSERT_EQ(quor_host_user(back, &user), 0);
    EXPECT_EQ(user, &registry);
    ASSERT_EQ(quor_inifile_create(&builtIn), 0);
    ASSERT_EQ(quor_host_user(builtIn, &user), 0);
    EXPECT_EQ(user, nullptr);
    ASSERT_EQ(quor_host_user(conversion, &user), 0);
    EXPECT_EQ(user, nullptr);
    EXPECT_EQ(quor_host_user(0, &user), QUOR_ERROR_NO_OBJECT);
}
