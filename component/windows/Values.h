#pragma once

#include "component/quor.h"
#include "component/windows/Rows.h"

#include <ole2.h>
#include <string>

// Values of automation as those of the library, and back. Nothing is guessed: an integer is taken where it
// fits, also for a double; a double without a fraction also for an integer; no text is taken for a number,
// since what it means depends on the country. An empty variable is an empty text, no reference, and, in/out,
// zero.
namespace QuorConversions::Automation {

/// A VARIANT that is cleared at the end.
class Variant {
public:
    Variant() { VariantInit(&m_value); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;
    ~Variant() { VariantClear(&m_value); }

    [[nodiscard]] VARIANT& operator*() { return m_value; }
    [[nodiscard]] VARIANT* operator->() { return &m_value; }
    [[nodiscard]] VARIANT* Get() { return &m_value; }

private:
    VARIANT m_value;
};

/// How many bytes a value of that type has; 0 for a type that has no size of its own.
[[nodiscard]] std::size_t SizeOf(int type);

/// What a script passes for a variable of its own is a reference to a VARIANT: the VARIANT itself.
[[nodiscard]] VARIANT& Unwrapped(VARIANT& given);
/// Whether an argument was left out.
[[nodiscard]] bool IsMissing(const VARIANT& given);

/// An argument of a call while it lasts.
class Argument {
public:
    Argument() = default;
    Argument(const Argument&) = delete;
    Argument& operator=(const Argument&) = delete;
    ~Argument() { quor_value_clear(&m_value); }

    /// Raises DISP_E_TYPEMISMATCH and DISP_E_OVERFLOW.
    void Load(int type, Offer offer, VARIANT& given);
    /// Puts what came out into the variable that was given, where one was.
    void Store(VARIANT& given) const;

    [[nodiscard]] quor_value& Value() { return m_value; }

private:
    quor_value m_value{};
    std::string m_text;
};

/// The value as one of automation. Text and references are the receiver's.
void ToVariant(const quor_value& value, VARIANT& result);

} // namespace QuorConversions::Automation
