#pragma once

#include "QuorConversions/core/SettingsObject.h"
#include "QuorConversions/core/SpareArray.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <utility>

namespace QuorConversions {

/// A settings class that is essentially a list of coefficients with a count. Its members are published by the
/// classes that have them.
class QUORCONVERSIONS_EXPORT CoefficientSettings : public SettingsObject {
protected:
    /// For a class whose indices are limited by its count alone.
    static constexpr std::int32_t anyIndex = std::numeric_limits<std::int32_t>::max();

    /// No index above `highestIndex` is valid, whatever the count.
    CoefficientSettings(std::shared_ptr<Platform> platform, const SettingsTraits& traits,
                        std::int32_t highestIndex);

    [[nodiscard]] std::int16_t NumCoefficients() const { return m_slots.Count(); }
    /// Marks the object changed and resizes when the count differs. Raises 9 "Subscript out of range" for a
    /// negative count, after count and mark are set.
    void ResizeCoefficients(std::int16_t count);
    /// The same, but a negative count is taken silently.
    void SetNumCoefficients(std::int16_t value);

    /// Both raise "Index out of range" (0x800401F5) and store nothing for an index that is not valid.
    [[nodiscard]] double Coefficients(std::int32_t index) const { return m_slots.At(index).value; }
    void SetCoefficients(std::int32_t index, double value) { Assign(m_slots.At(index).value, value); }

    /// How the dialog shows the coefficient (see ValueFormatter.h); never stored in a file and never a
    /// change. Under an empty format, or "General Number", nothing is lost. Under any other the dialog stores
    /// what it shows: digits that the format leaves out are gone after OK. Formats that group digits, scale,
    /// or add percent signs or brackets are not for boxes that people edit, because the number is read as it
    /// stands.
    [[nodiscard]] const std::wstring& ValueFormat(std::int32_t index) const {
        return m_slots.At(index).format;
    }
    void SetValueFormat(std::int32_t index, std::wstring value) {
        m_slots.At(index).format = std::move(value);
    }

    /// "NumCoefficients".
    void WriteCount(RecordWriter& record) const;
    /// The count that the record holds; the class applies it by its own rule.
    [[nodiscard]] std::int16_t ReadCount(RecordReader& record) const;
    /// "Coefficients0" to the last one of the count. A negative count marks the reading as failed.
    void WriteCoefficients(RecordWriter& record) const;
    void ReadCoefficients(RecordReader& record);

private:
    struct Slot {
        double value = 0.0;
        std::wstring format;
    };
    SpareArray<Slot> m_slots;
};

} // namespace QuorConversions
