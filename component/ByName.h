#pragma once

#include "component/Errors.h"
#include "component/quor.h"

#include <cstdint>
#include <limits>
#include <tuple>
#include <type_traits>
#include <utility>

// From values with a kind to the arguments of a typed function, and back. Each kind of parameter loads a
// value, passes what the function takes, and stores what came out.
// NOLINTBEGIN(cppcoreguidelines-pro-type-union-access): the values of C are a union with its kind beside it
namespace QuorConversions::Component {

[[nodiscard]] inline std::int32_t WrongKind() noexcept {
    return KeepError(QUOR_ERROR_TYPE, L"A value has the wrong kind for its parameter");
}

/// The integer of a value that is one. False for any other.
[[nodiscard]] inline bool Integer(const quor_value& value, std::int32_t& integer) noexcept {
    if (value.kind == QUOR_INT16)
        integer = value.as.int16;
    else if (value.kind == QUOR_INT32)
        integer = value.as.int32;
    else
        return false;
    return true;
}

// A parameter that goes in. Where it can be left out, the first value stands for it.

struct InBool {
    std::int16_t value = 0;
    std::int32_t Load(const quor_value& given) noexcept {
        std::int32_t integer = 0;
        if (given.kind == QUOR_BOOL)
            integer = given.as.boolean;
        else if (!Integer(given, integer))
            return WrongKind();
        value = static_cast<std::int16_t>(integer != 0 ? -1 : 0);
        return QUOR_OK;
    }
    auto Pass() noexcept { return std::make_tuple(value); }
    void Store(quor_value& /*given*/) noexcept {}
    void Drop() noexcept {}
};

struct InInt16 {
    std::int16_t value = 0;
    std::int32_t Load(const quor_value& given) noexcept {
        std::int32_t integer = 0;
        if (!Integer(given, integer))
            return WrongKind();
        value = static_cast<std::int16_t>(integer);
        return value == integer ? std::int32_t{QUOR_OK}
                                : KeepError(QUOR_ERROR_OVERFLOW, L"A number does not fit into 16 bits");
    }
    auto Pass() noexcept { return std::make_tuple(value); }
    void Store(quor_value& /*given*/) noexcept {}
    void Drop() noexcept {}
};

struct InInt32 {
    std::int32_t value = -2; ///< the current value, of a name function
    std::int32_t Load(const quor_value& given) noexcept {
        return Integer(given, value) ? std::int32_t{QUOR_OK} : WrongKind();
    }
    auto Pass() noexcept { return std::make_tuple(value); }
    void Store(quor_value& /*given*/) noexcept {}
    void Drop() noexcept {}
};

struct InDouble {
    double value = 0.0;
    std::int32_t Load(const quor_value& given) noexcept {
        std::int32_t integer = 0;
        if (given.kind == QUOR_DOUBLE)
            value = given.as.number;
        else if (Integer(given, integer))
            value = integer;
        else
            return WrongKind();
        return QUOR_OK;
    }
    auto Pass() noexcept { return std::make_tuple(value); }
    void Store(quor_value& /*given*/) noexcept {}
    void Drop() noexcept {}
};

struct InText {
    quor_text value = {nullptr, 0};
    std::int32_t Load(const quor_value& given) noexcept {
        if (given.kind != QUOR_TEXT)
            return WrongKind();
        value = given.as.text;
        return QUOR_OK;
    }
    auto Pass() noexcept { return std::make_tuple(value); }
    void Store(quor_value& /*given*/) noexcept {}
    void Drop() noexcept {}
};

struct InObject {
    quor_object value = 0;
    std::int32_t Load(const quor_value& given) noexcept {
        if (given.kind != QUOR_OBJECT)
            return WrongKind();
        value = given.as.object;
        return QUOR_OK;
    }
    auto Pass() noexcept { return std::make_tuple(value); }
    void Store(quor_value& /*given*/) noexcept {}
    void Drop() noexcept {}
};

// A parameter that goes in and out.

struct InOutBool : InBool {
    auto Pass() noexcept { return std::make_tuple(&value); }
    void Store(quor_value& given) noexcept {
        given.kind = QUOR_BOOL;
        given.as.boolean = value;
    }
};

struct InOutInt16 : InInt16 {
    auto Pass() noexcept { return std::make_tuple(&value); }
    void Store(quor_value& given) noexcept {
        given.kind = QUOR_INT16;
        given.as.int16 = value;
    }
};

struct InOutDouble : InDouble {
    auto Pass() noexcept { return std::make_tuple(&value); }
    void Store(quor_value& given) noexcept {
        given.kind = QUOR_DOUBLE;
        given.as.number = value;
    }
};

struct InOutText : InText {
    quor_text out = {nullptr, 0};
    auto Pass() noexcept { return std::make_tuple(value, &out); }
    void Store(quor_value& given) noexcept {
        quor_value_clear(&given);
        given.kind = QUOR_TEXT;
        given.owned = 1;
        given.as.text = std::exchange(out, quor_text{nullptr, 0});
    }
    void Drop() noexcept { quor_text_free(&out); }
};

/// The typed function releases a reference that it exchanges: where the value only lends it, it gets one of
/// its own.
struct InOutObject : InObject {
    quor_object before = 0;
    bool isLent = false;
    std::int32_t Load(const quor_value& given) noexcept {
        if (const std::int32_t code = InObject::Load(given); code != QUOR_OK)
            return code;
        before = value;
        isLent = value != 0 && given.owned == 0;
        return isLent ? quor_add_ref(value) : std::int32_t{QUOR_OK};
    }
    auto Pass() noexcept { return std::make_tuple(&value); }
    void Store(quor_value& given) noexcept {
        if (value == before) {
            Drop();
            if (given.kind == QUOR_OBJECT)
                return;
        }
        given = quor_value{};
        given.kind = QUOR_OBJECT;
        given.owned = value != 0 ? 1 : 0;
        given.as.object = value;
    }
    void Drop() const noexcept {
        if (isLent)
            quor_release(before);
    }
};

/// A parameter that can be left out.
template <class Parameter>
struct Optional : Parameter {};

template <class Parameter>
inline constexpr bool isOptional = false;
template <class Parameter>
inline constexpr bool isOptional<Optional<Parameter>> = true;

// Results.

struct NoResult {
    auto Pass(bool /*wanted*/) noexcept { return std::tuple<>(); }
    void Store(quor_value& result) const noexcept { result = quor_value{}; }
};

using Field = decltype(quor_value::as);

template <class Value, std::int32_t kind, Value Field::*field>
struct Result {
    Value value{};
    auto Pass(bool wanted) noexcept { return std::make_tuple(wanted ? &value : nullptr); }
    void Store(quor_value& result) const noexcept {
        result = quor_value{};
        result.kind = kind;
        result.owned = kind == QUOR_TEXT || kind == QUOR_OBJECT ? 1 : 0;
        result.as.*field = value;
    }
};

using OutBool = Result<std::int16_t, QUOR_BOOL, &Field::boolean>;
using OutInt16 = Result<std::int16_t, QUOR_INT16, &Field::int16>;
using OutInt32 = Result<std::int32_t, QUOR_INT32, &Field::int32>;
using OutDouble = Result<double, QUOR_DOUBLE, &Field::number>;
using OutText = Result<quor_text, QUOR_TEXT, &Field::text>;
using OutInt32s = Result<quor_int32s, QUOR_INT32S, &Field::int32s>;
using OutDoubles = Result<quor_doubles, QUOR_DOUBLES, &Field::doubles>;
using OutObject = Result<quor_object, QUOR_OBJECT, &Field::object>;

/// Loads the arguments, calls, and stores what came out.
template <class... Parameter, class Function>
std::int32_t WithArguments(quor_value* args, std::int32_t n, Function&& function) noexcept {
    constexpr auto count = static_cast<std::int32_t>(sizeof...(Parameter));
    if (n < 0 || n > count)
        return KeepError(QUOR_ERROR_ARGUMENT_COUNT, L"Too many arguments");
    if (n > 0 && !args)
        return KeepError(QUOR_ERROR_ARGUMENT, L"The arguments are NULL");
    std::tuple<Parameter...> parameters;
    std::int32_t place = 0;
    std::int32_t code = QUOR_OK;
    const auto load = [&](auto& parameter) {
        const std::int32_t at = place++;
        if (code != QUOR_OK)
            return;
        if (at < n && args[at].kind != QUOR_EMPTY)
            code = parameter.Load(args[at]);
        else if (!isOptional<std::remove_reference_t<decltype(parameter)>>)
            code = KeepError(QUOR_ERROR_ARGUMENT_COUNT, L"A required argument is missing");
    };
    std::apply([&](auto&... parameter) { (load(parameter), ...); }, parameters);
    if (code == QUOR_OK)
        code = std::apply(
            std::forward<Function>(function),
            std::apply([](auto&... parameter) { return std::tuple_cat(parameter.Pass()...); }, parameters));
    place = 0;
    const auto store = [&](auto& parameter) {
        const std::int32_t at = place++;
        if (code == QUOR_OK && at < n)
            parameter.Store(args[at]);
        else
            parameter.Drop();
    };
    std::apply([&](auto&... parameter) { (store(parameter), ...); }, parameters);
    return code;
}

/// Calls a member with values. One function serves all members of a signature: most of them have one in
/// common.
template <class Result, class... Parameter, class Typed>
std::int32_t CallWithValues(Typed* typed, quor_object object, quor_value* args, std::int32_t n,
                            quor_value* result) {
    Result out;
    const std::int32_t code = WithArguments<Parameter...>(args, n, [&](auto... arguments) {
        return std::apply(typed,
                          std::tuple_cat(std::make_tuple(object, arguments...), out.Pass(result != nullptr)));
    });
    if (code == QUOR_OK && result)
        out.Store(*result);
    return code;
}

/// A member that is called with values.
template <auto typed, class Result, class... Parameter>
std::int32_t ByName(quor_object object, quor_value* args, std::int32_t n, quor_value* result) {
    return CallWithValues<Result, Parameter...>(typed, object, args, n, result);
}

/// The making of an object, with values.
template <auto typed, class... Parameter>
std::int32_t MakeByName(quor_value* args, std::int32_t n, quor_object* object) {
    return WithArguments<Parameter...>(args, n,
                                       [&](auto... arguments) { return typed(arguments..., object); });
}

} // namespace QuorConversions::Component
// NOLINTEND(cppcoreguidelines-pro-type-union-access)
