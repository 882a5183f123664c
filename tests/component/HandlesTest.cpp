// Handles, and what becomes of objects when they are given back.

#include "tests/component/Component.h"

#include <algorithm>
#include <array>
#include <limits>
#include <random>
#include <thread>

namespace {

const Error noObject{QUOR_ERROR_NO_OBJECT, "quor",
                     "Invalid handle: it was never given out, or it was released"};

class Handles : public ComponentTest {};

} // namespace

TEST_F(Handles, AReleasedHandleIsAnErrorEverywhere) {
    Handle conversion = Conversion(QUOR_CONV_CVD);
    const quor_object old = conversion;
    conversion.Release();

    std::int16_t flag = 0;
    EXPECT_EQ(quor_conversion_get_Changed(old, &flag), QUOR_ERROR_NO_OBJECT);
    EXPECT_EQ(LastError(), noObject);
    EXPECT_EQ(quor_release(old), QUOR_ERROR_NO_OBJECT);
    EXPECT_EQ(quor_add_ref(old), QUOR_ERROR_NO_OBJECT);
    std::int32_t id = 0;
    EXPECT_EQ(quor_id_of_name(old, Text("Changed"), &id), QUOR_ERROR_NO_OBJECT);
    EXPECT_EQ(quor_invoke(old, 5, QUOR_GET, nullptr, 0, nullptr), QUOR_ERROR_NO_OBJECT);
    const char* name = nullptr;
    EXPECT_EQ(quor_class_of(old, &name), QUOR_ERROR_NO_OBJECT);
}

TEST_F(Handles, AHandleIsNotUsedAgainForAnotherObject) {
    Handle first = Conversion(QUOR_CONV_CVD);
    const quor_object old = first;
    first.Release();
    const Handle second = Conversion(QUOR_CONV_CVD); // in the same place of the table
    EXPECT_NE(old, second);
    EXPECT_EQ(quor_conversion_put_Changed(old, 0), QUOR_ERROR_NO_OBJECT);
}

TEST_F(Handles, NoNumberThatWasNeverGivenOutIsAnObject) {
    const Handle conversion = Conversion(QUOR_CONV_CVD);
    std::int16_t flag = 0;
    for (const quor_object foreign :
         {quor_object{0}, quor_object{1}, ~quor_object{0}, conversion + 1, conversion - 1,
          conversion + (quor_object{1} << 32), quor_object{0x7FFF12345678}, quor_object{1} << 63})
        EXPECT_EQ(quor_conversion_get_Changed(foreign, &flag), QUOR_ERROR_NO_OBJECT) << foreign;
    std::mt19937_64 random(1);
    for (int i = 0; i < 100'000; ++i)
        EXPECT_EQ(quor_conversion_get_Changed(random(), &flag), QUOR_ERROR_NO_OBJECT);
}

TEST_F(Handles, AnObjectOfAnotherClassIsAnError) {
    const Handle conversion = Conversion(QUOR_CONV_CVD);
    double value = 0;
    EXPECT_EQ(quor_cvd_get_Coefficients(conversion, QUOR_CVD_R0, &value), QUOR_ERROR_TYPE);
    EXPECT_EQ(LastError(), (Error{13, "quor", "The object is a CQuorConversion, not a CQuorCVD"}));
    quor_object registry = conversion;
    EXPECT_EQ(quor_conversion_SetRegistry(conversion, &registry), QUOR_ERROR_TYPE);
    EXPECT_EQ(registry, conversion);
}

TEST_F(Handles, OneObjectHasOneHandleHoweverItIsGivenOut) {
    const Handle conversion = Conversion(QUOR_CONV_ITS90);
    const Handle settings = SettingsOf(conversion);
    const Handle again = SettingsOf(conversion);
    EXPECT_EQ(settings, again);

    const Handle low = [&] {
        Handle range;
        EXPECT_EQ(quor_its90_get_LowRange(settings, &range), 0);
        return range;
    }();
    quor_value byName{};
    std::int32_t id = 0;
    ASSERT_EQ(quor_id_of_name(settings, Text("LowRange"), &id), 0);
    ASSERT_EQ(quor_invoke(settings, id, QUOR_GET, nullptr, 0, &byName), 0);
    EXPECT_EQ(byName.as.object, low);
    quor_value_clear(&byName);
}

TEST_F(Handles, OfSettingsAreOfTheClassOfTheirType) {
    const std::vector<std::pair<quor_EQuorConversionType, std::string>> classes{
        {QUOR_CONV_NONE, ""},
        {QUOR_CONV_ITS90, "CQuorITS90"},
        {QUOR_CONV_IPTS68, "CQuorIPTS68"},
        {QUOR_CONV_CVD, "CQuorCVD"},
        {QUOR_CONV_HTPRT, "CQuorHTPRT"},
        {QUOR_CONV_POLYNOMIAL, "CQuorPolynomial"},
        {QUOR_CONV_THERMISTORT_R, "CQuorThermistor"},
        {QUOR_CONV_THERMISTORR_T, "CQuorThermistor"},
        {QUOR_CONV_TCPOLYNOMIAL, "CQuorTCPolynomial"},
        {QUOR_CONV_TCTABLE, "CQuorTCTable"},
        {QUOR_CONV_TCTYPEX, "CQuorTCTypeX"},
        {QUOR_CONV_OHMS, ""},
        {QUOR_CONV_VOLTS, ""},
        {QUOR_CONV_IEC751, ""},
        {QUOR_CONV_YSI400, ""},
        {QUOR_CONV_WT90, "CQuorWT90"},
        {QUOR_CONV_RATIO, ""},
        {QUOR_CONV_PT100, ""},
        {QUOR_CONV_ITSSR5, "CQuorITS90"},
        {QUOR_CONV_THERMISTOR_OHMS, ""},
        {QUOR_CONV_PT100R0, "CQuorPT100"},
        {QUOR_CONV_TCTYPEPOLY, "CQuorTCTypePoly"},
        {21, ""},
        {std::numeric_limits<std::int32_t>::min(), ""}};
    for (const auto& [type, expected] : classes) {
        const Handle settings = SettingsOf(Conversion(type));
        const char* name = "";
        if (settings != 0) {
            ASSERT_EQ(quor_class_of(settings, &name), 0);
        }
        EXPECT_EQ(name, expected) << type;
    }
}

TEST_F(Handles, ARegistryThatWasHandedInComesBackAsItself) {
    MapRegistry host;
    {
        const Handle conversion = Conversion(QUOR_CONV_CVD);
        const Handle registry = host.Make();
        quor_object handed = registry;
        ASSERT_EQ(quor_conversion_SetRegistry(conversion, &handed), 0);
        EXPECT_EQ(handed, registry);

        Handle back, ofSettings;
        ASSERT_EQ(quor_conversion_get_Registry(conversion, &back), 0);
        ASSERT_EQ(quor_cvd_get_Registry(SettingsOf(conversion), &ofSettings), 0);
        EXPECT_EQ(back, registry);
        EXPECT_EQ(ofSettings, registry);
    }
    EXPECT_EQ(host.destroyed, 1);
}

TEST_F(Handles, TheLibraryKeepsWhatItNeedsWhenTheHostHasGivenItBack) {
    MapRegistry host;
    Handle conversion = Conversion(QUOR_CONV_CVD);
    {
        Handle registry = host.Make();
        ASSERT_EQ(quor_conversion_SetRegistry(conversion, &registry), 0);
    }
    EXPECT_EQ(host.destroyed, 0);
    Handle back;
    ASSERT_EQ(quor_conversion_get_Registry(conversion, &back), 0);
    EXPECT_NE(back, 0U);
    conversion.Release();
    EXPECT_EQ(host.destroyed, 0);
    back.Release();
    EXPECT_EQ(host.destroyed, 1);
}

TEST_F(Handles, SettingsOutliveTheirConversionAndRangesTheirOwner) {
    Handle conversion = Conversion(QUOR_CONV_ITS90);
    Handle settings = SettingsOf(conversion);
    Handle low;
    ASSERT_EQ(quor_its90_get_LowRange(settings, &low), 0);
    conversion.Release();
    ASSERT_EQ(quor_its90_put_RTPW(settings, 25.5), 0);
    settings.Release();
    ASSERT_EQ(quor_its90_low_range_put_Range(low, QUOR_ITS90_RANGE_1), 0);
    std::int16_t count = 0;
    ASSERT_EQ(quor_its90_low_range_get_NumCoefficients(low, &count), 0);
    EXPECT_EQ(count, 7);
}

TEST_F(Handles, MayBeGivenBackInEveryOrder) {
    std::array<int, 5> order{0, 1, 2, 3, 4};
    do {
        MapRegistry host;
        {
            std::array<Handle, 5> handles;
            ASSERT_EQ(quor_conversion_create(0, &handles[0]), 0);
            ASSERT_EQ(quor_conversion_put_ConversionType(handles[0], QUOR_CONV_ITS90), 0);
            ASSERT_EQ(quor_conversion_get_Settings(handles[0], &handles[1]), 0);
            ASSERT_EQ(quor_its90_get_LowRange(handles[1], &handles[2]), 0);
            ASSERT_EQ(quor_its90_get_HighRange(handles[1], &handles[3]), 0);
            const quor_registry_functions functions = MapRegistry::Functions();
            ASSERT_EQ(quor_registry_from_host(&functions, &host, &handles[4]), 0);
            ASSERT_EQ(quor_conversion_SetRegistry(handles[0], &handles[4]), 0);
            for (const int i : order)
                handles[static_cast<std::size_t>(i)].Release();
        }
        EXPECT_EQ(host.destroyed, 1);
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(Handles, CountTheirReferences) {
    Handle conversion = Conversion(QUOR_CONV_CVD);
    const quor_object handle = conversion;
    ASSERT_EQ(quor_add_ref(handle), 0);
    conversion.Release();
    EXPECT_EQ(quor_conversion_put_Changed(handle, 0), 0);
    EXPECT_EQ(quor_release(handle), 0);
    EXPECT_EQ(quor_conversion_put_Changed(handle, 0), QUOR_ERROR_NO_OBJECT);
}

TEST_F(Handles, ACallOnAnObjectThatIsReleasedInsideItRunsToItsEnd) {
    struct Host : RecordingPlatform {
        quor_object settings = 0;
    } host;
    host.runDialog = [](RecordingPlatform& platform, quor_object dialog) {
        EXPECT_EQ(quor_release(static_cast<Host&>(platform).settings), 0);
        return quor_dialog_Escape(dialog);
    };
    const Handle platform = host.Make();
    ASSERT_EQ(quor_pt100_create(platform, &host.settings), 0);
    std::int16_t accepted = -1;
    EXPECT_EQ(quor_pt100_Edit(host.settings, &accepted), 0);
    EXPECT_EQ(accepted, 0);
    EXPECT_EQ(quor_pt100_Edit(host.settings, &accepted), QUOR_ERROR_NO_OBJECT);
}

TEST_F(Handles, OfDifferentObjectsAreFreeInDifferentThreads) {
    const auto work = [](double first) {
        for (int i = 0; i < 2000; ++i) {
            const Handle conversion = Conversion(QUOR_CONV_CVD);
            const Handle cvd = SettingsOf(conversion);
            ASSERT_EQ(quor_cvd_put_Coefficients(cvd, QUOR_CVD_R0, first + i), 0);
            double value = 0;
            ASSERT_EQ(quor_cvd_get_Coefficients(cvd, QUOR_CVD_R0, &value), 0);
            ASSERT_EQ(value, first + i);
            ASSERT_EQ(quor_cvd_get_Coefficients(cvd, 4, &value), QUOR_ERROR_INDEX);
            ASSERT_EQ(LastError().source, "CQuorCVD");
        }
    };
    std::thread other(work, 0.5);
    work(100.0);
    other.join();
}

TEST_F(Handles, OfEachThreadHaveAnErrorOfTheirOwn) {
    std::int16_t flag = 0;
    EXPECT_EQ(quor_conversion_get_Changed(0, &flag), QUOR_ERROR_NO_OBJECT);
    std::thread([] {
        EXPECT_EQ(LastError().number, 0);
        EXPECT_EQ(quor_answer(Text("nobody asks")), QUOR_ERROR_ARGUMENT);
        EXPECT_EQ(LastError(), (Error{5, "quor", "quor_answer is called outside a function of the host"}));
    }).join();
    EXPECT_EQ(LastError().number, QUOR_ERROR_NO_OBJECT);
}
