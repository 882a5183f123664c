#pragma once

#include "QuorConversions/core/SettingsObject.h"
#include "QuorConversions/core/SpareArray.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <utility>

namespace QuorConversions {

/// A settings class that is essentially a list of coefficients with a count. Derived classes publish those of
/// its members that they have.
class QUORCONVERSIONS_EXPORT CoefficientSettings : public SettingsObject {
public:
    void ClearSpareValues() override;

protected:
    /// For a class whose indices are limited by its count alone.
    static constexpr std::int32_t anyIndex = std::numeric_limits<std::int32_t>::max();

    /// No index above `highestIndex` is valid, whatever the count.
    CoefficientSettings(std::shared_ptr<Platform> platform, const SettingsTraits& traits,
                        std::int32_t highestIndex);

    /// How many coefficients there are; valid indices are below it.
    [[nodiscard]] std::int16_t NumCoefficients() const { return m_slots.Count(); }
    /// Marks the object changed and resizes if the count differs. Raises 9 "Subscript out of range" for a
    /// negative count, after the count and the mark were set.
    void ResizeCoefficients(std::int16_t count);
    /// The same, but a negative count is accepted silently.
    void SetNumCoefficients(std::int16_t value);

    /// A coefficient, in the unit that the enumeration of its class gives; any double is accepted. An invalid
    /// index raises "Index out of range" (0x800401F5), and nothing is stored.
    [[nodiscard]] double Coefficients(std::int32_t index) const { return m_slots.At(index).value; }
    void SetCoefficients(std::int32_t index, double value) { Assign(m_slots.At(index).value, value); }

    /// How the dialog shows the coefficient (see ValueFormatter.h); not stored in files, and never a change.
    /// With an empty format, or "General Number", nothing is lost. With any other format the dialog stores
    /// what it shows: digits that the format omits are lost on OK. Do not use formats that group digits,
    /// scale, or add percent signs or brackets for boxes that users edit, because the text is read back as a
    /// plain number. An invalid index raises "Index out of range".
    [[nodiscard]] const std::wstring& ValueFormat(std::int32_t index) const {
        return m_slots.At(index).format;
    }
    void SetValueFormat(std::int32_t index, std::wstring value) {
        m_slots.At(index).format = std::move(value);
    }

    /// Writes the count under "NumCoefficients".
    void WriteCount(RecordWriter& record) const;
    /// The count in the record, which the class applies by its own rule.
    [[nodiscard]] std::int16_t ReadCount(RecordReader& record) const;
    /// Write and read "Coefficients0" to the last one of the count. A negative count makes the reading fail.
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
