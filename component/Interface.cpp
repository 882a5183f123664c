// The functions of quor.h that are not made from the table: references, calls by name, what the table says.

#include "QuorIniFile/AsciiCase.h"
#include "component/Errors.h"
#include "component/Handles.h"
#include "component/Members.h"
#include "component/Text.h"
#include "component/quor.h"

#include <algorithm>
#include <string_view>

namespace QuorConversions::Component {
namespace {

/// Whether `name`, which is in lower case, stands before `given` in any case.
[[nodiscard]] bool StandsBefore(std::string_view name, std::string_view given) {
    return std::lexicographical_compare(
        name.begin(), name.end(), given.begin(), given.end(),
        [](char left, char right) { return QuorIniFile::Small(left) < QuorIniFile::Small(right); });
}

/// The number of a name in any case; 0 when there is none.
[[nodiscard]] std::int32_t NumberOf(std::string_view given) {
    const auto names = Names();
    const auto found =
        std::lower_bound(names.begin(), names.end(), given,
                         [](const NameRow& row, std::string_view g) { return StandsBefore(row.name, g); });
    return found != names.end() && QuorIniFile::EqualFolded(found->name, given) ? found->number : 0;
}

[[nodiscard]] const ClassRow& ClassOfObject(quor_object object) {
    const HandleTable::Found found = HandleTable::Instance().Find(object);
    if (!found.object)
        ThrowNoObject();
    return AllClasses()[static_cast<std::size_t>(found.classId)];
}

/// The class of that name. Raises 429 when there is none.
[[nodiscard]] const ClassRow& ClassNamed(quor_text name) {
    const std::string_view wanted = Bytes(name);
    const auto classes = AllClasses();
    const auto found = std::find_if(classes.begin(), classes.end(), [&](const ClassRow& row) {
        return QuorIniFile::EqualFolded(row.name, wanted);
    });
    if (found == classes.end())
        Throw(QUOR_ERROR_CANNOT_CREATE, L"There is no class " + Wide(name));
    return *found;
}

[[nodiscard]] std::wstring Words(const char* ascii) {
    const std::string_view text = ascii;
    return {text.begin(), text.end()};
}

[[noreturn]] void ThrowNoMember(const ClassRow& row, const std::wstring& member) {
    Throw(QUOR_ERROR_NO_MEMBER, L"The class " + Words(row.name) + L" has no member " + member);
}

[[nodiscard]] MemberFunction FunctionOf(const MemberRow& member, std::int32_t kind) {
    return kind == QUOR_GET    ? member.get
           : kind == QUOR_PUT  ? member.put
           : kind == QUOR_CALL ? member.call
                               : nullptr;
}

/// Raises what it means that a member does not have that kind.
[[noreturn]] void ThrowNoKind(const ClassRow& row, const MemberRow& member, std::int32_t kind) {
    const std::wstring name = Words(row.name) + L"." + Words(member.name);
    if (kind == QUOR_GET && member.put)
        Throw(QUOR_ERROR_WRITE_ONLY, name + L" can only be set");
    if (kind == QUOR_PUT && member.get)
        Throw(QUOR_ERROR_READ_ONLY, name + L" can only be read");
    Throw(QUOR_ERROR_NO_MEMBER, name + (member.call ? L" is a call" : L" is a property"));
}

[[nodiscard]] constexpr std::int32_t If(bool condition, std::int32_t value) { return condition ? value : 0; }

} // namespace
} // namespace QuorConversions::Component

using namespace QuorConversions::Component;

int32_t quor_add_ref(quor_object object) {
    return Guarded([&] { HandleTable::Instance().AddReference(object); });
}

int32_t quor_release(quor_object object) {
    return Guarded([&] { HandleTable::Instance().Release(object); });
}

int32_t quor_class_of(quor_object object, const char** class_name) {
    return Guarded([&] {
        const char* const name = ClassOfObject(object).name;
        if (class_name)
            *class_name = name;
    });
}

int32_t quor_handle_count(int32_t* count) {
    return Guarded([&] {
        if (count)
            *count = HandleTable::Instance().Count();
    });
}

const char* quor_version(void) { return QUOR_VERSION; }

void quor_value_clear(quor_value* value) {
    if (!value)
        return;
    // NOLINTBEGIN(cppcoreguidelines-pro-type-union-access): its kind says which it is
    if (value->owned != 0 && value->kind == QUOR_TEXT)
        quor_text_free(&value->as.text);
    if (value->owned != 0 && value->kind == QUOR_OBJECT && value->as.object != 0)
        static_cast<void>(quor_release(value->as.object));
    // NOLINTEND(cppcoreguidelines-pro-type-union-access)
    *value = quor_value{};
}

int32_t quor_id_of_name(quor_object object, quor_text name, int32_t* id) {
    return Guarded([&] {
        const ClassRow& row = ClassOfObject(object);
        const std::int32_t number = NumberOf(Bytes(name));
        if (!row.Find(number))
            ThrowNoMember(row, Wide(name));
        if (id)
            *id = number;
    });
}

int32_t quor_invoke(quor_object object, int32_t id, int32_t kind, quor_value* args, int32_t n,
                    quor_value* result) {
    MemberFunction function = nullptr;
    const std::int32_t code = Guarded([&] {
        const ClassRow& row = ClassOfObject(object);
        const MemberRow* const member = row.Find(id);
        if (!member)
            ThrowNoMember(row, std::to_wstring(id));
        function = FunctionOf(*member, kind);
        if (!function)
            ThrowNoKind(row, *member, kind);
    });
    return code == QUOR_OK ? function(object, args, n, result) : code;
}

int32_t quor_create(quor_text class_name, quor_value* args, int32_t n, quor_object* object) {
    MakingFunction make = nullptr;
    const std::int32_t code = Guarded([&] {
        const ClassRow& row = ClassNamed(class_name);
        if (!row.make)
            Throw(QUOR_ERROR_CANNOT_CREATE, L"Hosts cannot create objects of the class " + Words(row.name));
        make = row.make;
    });
    return code == QUOR_OK ? make(args, n, object) : code;
}

int32_t quor_members(quor_text class_name, quor_member* members, int32_t capacity, int32_t* count) {
    return Guarded([&] {
        const ClassRow& row = ClassNamed(class_name);
        if (capacity < 0 || (capacity > 0 && !members))
            Throw(QUOR_ERROR_ARGUMENT, L"The pointer to the members is NULL");
        const std::size_t fitting = std::min(static_cast<std::size_t>(capacity), row.members.size());
        std::transform(
            row.members.begin(), row.members.begin() + static_cast<std::ptrdiff_t>(fitting), members,
            [](const MemberRow& member) {
                return quor_member{
                    member.name,
                    member.signature,
                    member.number,
                    If(member.get, QUOR_GET) + If(member.put, QUOR_PUT) + If(member.call, QUOR_CALL),
                    member.parameters,
                    member.required};
            });
        if (count)
            *count = static_cast<std::int32_t>(row.members.size());
    });
}
