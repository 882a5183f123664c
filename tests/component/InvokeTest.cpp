// Values, texts and errors on their way over the border, typed and by name.

#include "tests/component/Component.h"
#include "tests/support/TempFolder.h"

#include <bit>
#include <limits>
#include <random>

namespace {

quor_value Int32(std::int32_t value) {
    quor_value result{};
    result.kind = QUOR_INT32;
    result.as.int32 = value;
    return result;
}

quor_value Int16(std::int16_t value) {
    quor_value result{};
    result.kind = QUOR_INT16;
    result.as.int16 = value;
    return result;
}

quor_value Number(double value) {
    quor_value result{};
    result.kind = QUOR_DOUBLE;
    result.as.number = value;
    return result;
}

quor_value TextValue(const char* text) {
    quor_value result{};
    result.kind = QUOR_TEXT;
    result.as.text = quor_text_of(text);
    return result;
}

std::int32_t IdOf(quor_object object, const std::string& name) {
    std::int32_t id = 0;
    EXPECT_EQ(quor_id_of_name(object, Text(name), &id), 0) << name;
    return id;
}

/// A CVD object to call.
class Invoke : public ComponentTest {
protected:
    const Handle conversion = Conversion(QUOR_CONV_CVD);
    const Handle cvd = SettingsOf(conversion);

    std::int32_t Call(quor_object object, const std::string& name, std::int32_t kind,
                      std::vector<quor_value> args, quor_value* result = nullptr) {
        return quor_invoke(object, IdOf(object, name), kind, args.data(),
                           static_cast<std::int32_t>(args.size()), result);
    }
};

} // namespace

TEST_F(Invoke, FindsNamesInAnyCaseOfAsciiAndTheSameNumberInEveryClass) {
    EXPECT_EQ(IdOf(cvd, "Coefficients"), 28);
    EXPECT_EQ(IdOf(cvd, "cOEFFICIENTS"), 28);
    EXPECT_EQ(IdOf(cvd, "Changed"), 5);
    EXPECT_EQ(IdOf(conversion, "CHANGED"), 5);
    std::int32_t id = 0;
    EXPECT_EQ(quor_id_of_name(cvd, Text("RTPW"), &id), QUOR_ERROR_NO_MEMBER);
    EXPECT_EQ(LastError(), (Error{438, "quor", "The class CQuorCVD has no member RTPW"}));
    EXPECT_EQ(quor_id_of_name(cvd, Text("Coefficient\xC5\xBF"), &id), QUOR_ERROR_NO_MEMBER);
    EXPECT_EQ(quor_id_of_name(cvd, Text(""), &id), QUOR_ERROR_NO_MEMBER);
}

TEST_F(Invoke, GetsPutsAndCalls) {
    EXPECT_EQ(Call(cvd, "Coefficients", QUOR_PUT, {Int32(QUOR_CVD_R0), Number(100.0123)}), 0);
    quor_value result{};
    EXPECT_EQ(Call(cvd, "Coefficients", QUOR_GET, {Int32(QUOR_CVD_R0)}, &result), 0);
    EXPECT_EQ(result.kind, QUOR_DOUBLE);
    EXPECT_EQ(result.as.number, 100.0123);
    EXPECT_EQ(Call(cvd, "GetName", QUOR_CALL, {}, &result), 0);
    EXPECT_EQ(Seen(result.as.text), "Callendar-Van Dusen");
    EXPECT_EQ(result.owned, 1);
    quor_value_clear(&result);
    EXPECT_EQ(result.kind, QUOR_EMPTY);
}

TEST_F(Invoke, LetsOutWhatTheInterfaceLetsOut) {
    quor_value result{};
    ASSERT_EQ(Call(conversion, "ConversionName", QUOR_CALL, {}, &result), 0);
    EXPECT_EQ(Seen(result.as.text), "Callendar-Van Dusen");
    quor_value_clear(&result);
    ASSERT_EQ(Call(conversion, "ConversionName", QUOR_CALL, {quor_value{}}, &result), 0);
    EXPECT_EQ(Seen(result.as.text), "Callendar-Van Dusen");
    quor_value_clear(&result);
    ASSERT_EQ(Call(conversion, "ConversionName", QUOR_CALL, {Int32(QUOR_CONV_OHMS)}, &result), 0);
    EXPECT_EQ(Seen(result.as.text), "Ohms");
    quor_value_clear(&result);
}

TEST_F(Invoke, CountsItsArguments) {
    EXPECT_EQ(Call(cvd, "Coefficients", QUOR_GET, {}), QUOR_ERROR_ARGUMENT_COUNT);
    EXPECT_EQ(LastError(), (Error{450, "quor", "A required argument is missing"}));
    EXPECT_EQ(Call(cvd, "Coefficients", QUOR_GET, {quor_value{}}), QUOR_ERROR_ARGUMENT_COUNT);
    EXPECT_EQ(Call(cvd, "Coefficients", QUOR_GET, {Int32(0), Int32(0)}), QUOR_ERROR_ARGUMENT_COUNT);
    EXPECT_EQ(LastError(), (Error{450, "quor", "Too many arguments"}));
    EXPECT_EQ(quor_invoke(cvd, 28, QUOR_GET, nullptr, 1, nullptr), QUOR_ERROR_ARGUMENT);
    EXPECT_EQ(quor_invoke(cvd, 28, QUOR_GET, nullptr, -1, nullptr), QUOR_ERROR_ARGUMENT_COUNT);
}

TEST_F(Invoke, TakesAnIntegerWhereItFitsAndConvertsNothingElse) {
    EXPECT_EQ(Call(cvd, "Coefficients", QUOR_PUT, {Int16(0), Int32(100)}), 0);
    double value = 0;
    EXPECT_EQ(quor_cvd_get_Coefficients(cvd, QUOR_CVD_R0, &value), 0);
    EXPECT_EQ(value, 100.0);
    EXPECT_EQ(Call(cvd, "NumCoefficients", QUOR_PUT, {Int32(3)}), 0);
    EXPECT_EQ(Call(cvd, "NumCoefficients", QUOR_PUT, {Int32(65536 + 2)}), QUOR_ERROR_OVERFLOW);
    std::int16_t count = 0;
    EXPECT_EQ(quor_cvd_get_NumCoefficients(cvd, &count), 0);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(Call(cvd, "NumCoefficients", QUOR_PUT, {Number(2.0)}), QUOR_ERROR_TYPE);
    EXPECT_EQ(Call(cvd, "Coefficients", QUOR_PUT, {Int32(0), TextValue("100")}), QUOR_ERROR_TYPE);
    EXPECT_EQ(Call(cvd, "FilePath", QUOR_PUT, {Int32(1)}), QUOR_ERROR_TYPE);
    quor_value unknown{};
    unknown.kind = 99;
    EXPECT_EQ(Call(cvd, "FilePath", QUOR_PUT, {unknown}), QUOR_ERROR_TYPE);
}

TEST_F(Invoke, TellsWhatAMemberIsNot) {
    EXPECT_EQ(Call(conversion, "Settings", QUOR_PUT, {Int32(0)}), QUOR_ERROR_READ_ONLY);
    EXPECT_EQ(LastError(), (Error{383, "quor", "CQuorConversion.Settings can only be read"}));
    EXPECT_EQ(Call(conversion, "Edit", QUOR_GET, {}), QUOR_ERROR_NO_MEMBER);
    EXPECT_EQ(LastError(), (Error{438, "quor", "CQuorConversion.Edit is a call"}));
    EXPECT_EQ(Call(conversion, "Changed", QUOR_CALL, {}), QUOR_ERROR_NO_MEMBER);
    EXPECT_EQ(LastError(), (Error{438, "quor", "CQuorConversion.Changed is a property"}));
    EXPECT_EQ(quor_invoke(conversion, IdOf(conversion, "Changed"), 3, nullptr, 0, nullptr),
              QUOR_ERROR_NO_MEMBER);
    ListOfItems list;
    EXPECT_EQ(Call(list.Make(), "ItemData", QUOR_GET, {Int32(0)}), QUOR_ERROR_WRITE_ONLY);
    // A number of another class's member is none of this class.
    EXPECT_EQ(quor_invoke(conversion, 28, QUOR_GET, nullptr, 0, nullptr), QUOR_ERROR_NO_MEMBER);
    for (const std::int32_t id : {0, -1, 255, 256, std::numeric_limits<std::int32_t>::max(),
                                  std::numeric_limits<std::int32_t>::min()})
        EXPECT_EQ(quor_invoke(conversion, id, QUOR_GET, nullptr, 0, nullptr), QUOR_ERROR_NO_MEMBER) << id;
}

TEST_F(Invoke, RaisesTheErrorOfTheObjectWithItsWords) {
    double value = 7;
    EXPECT_EQ(quor_cvd_get_Coefficients(cvd, 4, &value), QUOR_ERROR_INDEX);
    EXPECT_EQ(static_cast<std::uint32_t>(QUOR_ERROR_INDEX), 0x800401F5U);
    EXPECT_EQ(value, 7);
    EXPECT_EQ(LastError(), (Error{-2147221003, "CQuorCVD", "Index out of range"}));
    EXPECT_EQ(Call(cvd, "Coefficients", QUOR_GET, {Int32(-1)}), QUOR_ERROR_INDEX);

    const Handle its90 = SettingsOf(Conversion(QUOR_CONV_ITS90));
    Handle high;
    ASSERT_EQ(quor_its90_get_HighRange(its90, &high), 0);
    EXPECT_EQ(quor_its90_high_range_put_Range(high, QUOR_ITS90_RANGE_4), QUOR_ERROR_RANGE);
    EXPECT_EQ(LastError(), (Error{-2147221002, "CQuorITS90HighRange", "ITS-90 range out of range."}));
}

TEST_F(Invoke, ASuccessLeavesTheLastErrorStanding) {
    EXPECT_EQ(quor_cvd_get_Coefficients(cvd, 4, nullptr), QUOR_ERROR_INDEX);
    EXPECT_EQ(quor_cvd_get_Coefficients(cvd, 3, nullptr), 0);
    EXPECT_EQ(LastError().number, QUOR_ERROR_INDEX);
    EXPECT_EQ(quor_last_error(nullptr), QUOR_ERROR_ARGUMENT);
}

TEST_F(Invoke, TrueIsMinusOneAndAnyValueButZeroIsTakenAsTrue) {
    for (const std::int16_t flag :
         {std::int16_t{-1}, std::int16_t{1}, std::int16_t{256}, std::int16_t{-32768}}) {
        ASSERT_EQ(quor_cvd_put_UsePolynomial(cvd, 0), 0);
        ASSERT_EQ(quor_cvd_put_UsePolynomial(cvd, flag), 0);
        std::int16_t got = 0;
        ASSERT_EQ(quor_cvd_get_UsePolynomial(cvd, &got), 0);
        EXPECT_EQ(got, -1);
    }
    // By name an integer is taken as well, one whose low 16 bits are 0 too.
    ASSERT_EQ(quor_cvd_put_UsePolynomial(cvd, 0), 0);
    ASSERT_EQ(Call(cvd, "UsePolynomial", QUOR_PUT, {Int32(65536)}), 0);
    std::int16_t got = 0;
    ASSERT_EQ(quor_cvd_get_UsePolynomial(cvd, &got), 0);
    EXPECT_EQ(got, -1);
}

TEST_F(Invoke, DoublesComeBackBitForBit) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 100'000; ++i) {
        const double value = std::bit_cast<double>(random());
        ASSERT_EQ(quor_cvd_put_Coefficients(cvd, QUOR_CVD_BETA, value), 0);
        double got = 0;
        ASSERT_EQ(quor_cvd_get_Coefficients(cvd, QUOR_CVD_BETA, &got), 0);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(got), std::bit_cast<std::uint64_t>(value));
    }
}

TEST_F(Invoke, TextIsUtf8WithItsSize) {
    const std::string text("/daten/Ger\xC3\xA4te/\xF0\x9F\x8C\xA1/a\0b", 24);
    ASSERT_EQ(quor_cvd_put_FilePath(cvd, Text(text)), 0);
    quor_text got{};
    ASSERT_EQ(quor_cvd_get_FilePath(cvd, &got), 0);
    EXPECT_EQ(got.size, text.size());
    EXPECT_EQ(got.bytes[got.size], '\0');
    EXPECT_EQ(Taken(got), text);

    EXPECT_EQ(quor_cvd_put_FilePath(cvd, Text("\xFF")), QUOR_ERROR_ARGUMENT);
    EXPECT_EQ(LastError(), (Error{5, "quor", "A text is not valid UTF-8"}));
    EXPECT_EQ(quor_cvd_put_FilePath(cvd, {nullptr, 3}), QUOR_ERROR_ARGUMENT);
    EXPECT_EQ(LastError(), (Error{5, "quor", "A text of 3 bytes is NULL"}));
    EXPECT_EQ(quor_cvd_put_FilePath(cvd, {"x", ~std::size_t{0}}), QUOR_ERROR_ARGUMENT);
    ASSERT_EQ(quor_cvd_get_FilePath(cvd, &got), 0);
    EXPECT_EQ(Taken(got), text);

    ASSERT_EQ(quor_cvd_put_FilePath(cvd, {nullptr, 0}), 0);
    ASSERT_EQ(quor_cvd_get_FilePath(cvd, &got), 0);
    EXPECT_EQ(Taken(got), "");
    got = {nullptr, 0};
    quor_text_free(&got);
    quor_text_free(nullptr);
}

TEST_F(Invoke, AResultThatIsNotWantedMayBeNull) {
    EXPECT_EQ(quor_cvd_get_Coefficients(cvd, 0, nullptr), 0);
    EXPECT_EQ(quor_cvd_GetName(cvd, nullptr), 0);
    EXPECT_EQ(quor_conversion_get_Settings(conversion, nullptr), 0);
    EXPECT_EQ(quor_conversion_create(0, nullptr), 0);
    EXPECT_EQ(quor_class_of(cvd, nullptr), 0);
}

TEST_F(Invoke, AnInOutReferenceThatIsNoneStaysNone) {
    const TempFolder folder;
    quor_object none = 0;
    const std::string file = folder.Path("probe.ini").string();
    ASSERT_EQ(quor_conversion_WriteToFile(conversion, &none, Text(file), Text("Probe")), 0);
    EXPECT_EQ(none, 0U);
    ASSERT_EQ(quor_conversion_WriteToFile(conversion, nullptr, Text(file), Text("Other")), 0);
    std::vector<quor_value> args{quor_value{}, TextValue(file.c_str()), TextValue("Third")};
    ASSERT_EQ(quor_invoke(conversion, IdOf(conversion, "WriteToFile"), QUOR_CALL, args.data(), 3, nullptr),
              0);
    EXPECT_EQ(args[0].kind, QUOR_OBJECT);
    EXPECT_EQ(args[0].as.object, 0U);

    Handle other;
    ASSERT_EQ(quor_conversion_create(0, &other), 0);
    std::int16_t complete = 0;
    for (const char* const section : {"Probe", "Other", "Third"}) {
        ASSERT_EQ(quor_conversion_ReadFromFile(other, &none, Text(file), Text(section), &complete), 0);
        EXPECT_EQ(complete, -1) << section;
    }
}

TEST_F(Invoke, AnInOutTextComesOutByNameInItsArgument) {
    RecordingPlatform host;
    const TempFolder folder;
    host.answer = folder.Path("chosen.pt1").string();
    const Handle platform = host.Make();
    Handle pt100;
    ASSERT_EQ(quor_pt100_create(platform, &pt100), 0);
    std::vector<quor_value> args{Int32(17), TextValue("")};
    quor_value result{};
    ASSERT_EQ(quor_invoke(pt100, IdOf(pt100, "SaveFileAs"), QUOR_CALL, args.data(), 2, &result), 0);
    EXPECT_EQ(result.kind, QUOR_BOOL);
    EXPECT_EQ(result.as.boolean, -1);
    EXPECT_EQ(args[1].owned, 1);
    EXPECT_EQ(Seen(args[1].as.text), host.answer);
    // What is owned goes in again, and is given back.
    host.answer = folder.Path("second.pt1").string();
    ASSERT_EQ(quor_invoke(pt100, IdOf(pt100, "SaveFileAs"), QUOR_CALL, args.data(), 2, nullptr), 0);
    EXPECT_EQ(Seen(args[1].as.text), host.answer);
    quor_value_clear(&args[1]);
    EXPECT_EQ(folder.Files(), (std::vector<std::string>{"chosen.pt1", "second.pt1"}));
}

TEST_F(Invoke, InOutNumbersComeBackByName) {
    MapIniFile store;
    const Handle file = store.Make();
    store.numbers[{"Probe", "R0"}] = 100.5;
    ASSERT_EQ(quor_inifile_put_Section(file, Text("Probe")), 0);
    std::vector<quor_value> args{TextValue("R0"), Number(1)};
    quor_value found{};
    ASSERT_EQ(quor_invoke(file, IdOf(file, "ReadDouble"), QUOR_CALL, args.data(), 2, &found), 0);
    EXPECT_EQ(found.as.boolean, -1);
    EXPECT_EQ(args[1].as.number, 100.5);
    args[0] = TextValue("none");
    ASSERT_EQ(quor_invoke(file, IdOf(file, "ReadDouble"), QUOR_CALL, args.data(), 2, &found), 0);
    EXPECT_EQ(found.as.boolean, 0);
    EXPECT_EQ(args[1].as.number, 100.5);
    std::int16_t got = 0;
    EXPECT_EQ(quor_inifile_ReadDouble(file, Text("R0"), nullptr, &got), QUOR_ERROR_ARGUMENT);
    EXPECT_EQ(LastError(), (Error{5, "quor", "An in/out argument is NULL"}));
}

TEST_F(Invoke, MakesWhatHostsMakeAndNothingElse) {
    Handle pt100, registry;
    EXPECT_EQ(quor_create(Text("cquorpt100"), nullptr, 0, &pt100), 0);
    const char* name = nullptr;
    EXPECT_EQ(quor_class_of(pt100, &name), 0);
    EXPECT_STREQ(name, "CQuorPT100");
    std::vector<quor_value> args{TextValue("quor-test"), TextValue("/nonexistent")};
    EXPECT_EQ(quor_create(Text("Registry"), args.data(), 2, &registry), 0);

    quor_object none = 0;
    EXPECT_EQ(quor_create(Text("CQuorCVD"), nullptr, 0, &none), QUOR_ERROR_CANNOT_CREATE);
    EXPECT_EQ(LastError(), (Error{429, "quor", "Hosts cannot create objects of the class CQuorCVD"}));
    EXPECT_EQ(quor_create(Text("Nothing"), nullptr, 0, &none), QUOR_ERROR_CANNOT_CREATE);
    EXPECT_EQ(LastError(), (Error{429, "quor", "There is no class Nothing"}));
    EXPECT_EQ(quor_create(Text("Registry"), nullptr, 0, &none), QUOR_ERROR_ARGUMENT_COUNT);
    EXPECT_EQ(none, 0U);
}

TEST_F(Invoke, TellsTheMembersOfAClassInInterfaceOrder) {
    std::int32_t count = 0;
    ASSERT_EQ(quor_members(Text("CQuorCVD"), nullptr, 0, &count), 0);
    ASSERT_EQ(count, 16);
    std::vector<quor_member> members(16);
    ASSERT_EQ(quor_members(Text("CQuorCVD"), members.data(), 16, nullptr), 0);
    EXPECT_STREQ(members[0].name, "AllowEdit");
    EXPECT_STREQ(members[5].name, "Coefficients");
    EXPECT_STREQ(members[5].signature, "Coefficients[Index: ECVDCoefficients]: double");
    EXPECT_EQ(members[5].id, 28);
    EXPECT_EQ(members[5].kinds, QUOR_GET + QUOR_PUT);
    EXPECT_EQ(members[5].parameters, 1);
    EXPECT_STREQ(members[15].signature,
                 "ReadFromFile(inout INIFile: INIFile, fname: text = \"\", secname: text) -> bool");
    EXPECT_EQ(members[15].kinds, QUOR_CALL);
    EXPECT_EQ(members[15].required, 3);
    ASSERT_EQ(quor_members(Text("Platform"), nullptr, 0, &count), 0);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(quor_members(Text("CQuorCVD"), nullptr, 1, &count), QUOR_ERROR_ARGUMENT);
    EXPECT_EQ(quor_members(Text("None"), nullptr, 0, &count), QUOR_ERROR_CANNOT_CREATE);
}

TEST_F(Invoke, SaysItsVersion) { EXPECT_STREQ(quor_version(), "1.0.0"); }
