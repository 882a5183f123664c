#pragma once

#include "QuorConversions/controls/ListControl.h"
#include "QuorConversions/core/CreationKey.h"
#include "QuorConversions/core/QuorObject.h"
#include "QuorConversions/core/SettingsObject.h"
#include "QuorConversions/core/SharedValueFormat.h"
#include "QuorConversions/core/SpareArray.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>

namespace QuorConversions {

/// The sub-ranges of the ITS-90 for platinum resistance thermometers, numbered as in this library.
enum EITS90RangeNumber : std::int32_t {
    ITS90_NORANGE = -1,  ///< none is selected
    ITS90_RANGE_1 = 1,   ///< 13 K to 273 K
    ITS90_RANGE_2 = 2,   ///< 24 K to 273 K
    ITS90_RANGE_3 = 3,   ///< 54 K to 273 K
    ITS90_RANGE_4 = 4,   ///< 83 K to 273 K
    ITS90_RANGE_5 = 5,   ///< 234 K to 302 K, the one that both sides have
    ITS90_RANGE_6 = 6,   ///< 273 K to 1234 K
    ITS90_RANGE_7 = 7,   ///< 273 K to 933 K
    ITS90_RANGE_8 = 8,   ///< 273 K to 692 K
    ITS90_RANGE_9 = 9,   ///< 273 K to 505 K
    ITS90_RANGE_10 = 10, ///< 273 K to 429 K
    ITS90_RANGE_11 = 11, ///< 273 K to 302 K
};

/// Which of the two range objects is meant.
enum EITS90RangeHL : std::int32_t { IR_NONE = -1, IR_LOWRANGE = 0, IR_HIGHRANGE = 1 };

/// One sub-range of an ITS-90 calibration and the coefficients of its deviation function (dimensionless). The
/// low and the high range differ only in their constants.
class QUORCONVERSIONS_EXPORT CQuorITS90Range : public QuorObject, private SharedValueFormat {
public:
    /// Whether the labels of the dialog include the range number; True at first. Never a change.
    [[nodiscard]] bool ShowCoefRange() const { return m_showCoefRange; }
    void SetShowCoefRange(bool value) { m_showCoefRange = value; }
    /// Whether the dialog lets the user choose another range; True at first. Never a change.
    [[nodiscard]] bool AllowChangeRange() const { return m_allowChangeRange; }
    void SetAllowChangeRange(bool value) { m_allowChangeRange = value; }

    using QuorObject::SetRegistry, QuorObject::Registry;
    using QuorObject::Changed, QuorObject::SetChanged;

    /// True at first. Setting it False selects, through Range, the first range that only this side has.
    /// Another value is a change.
    [[nodiscard]] bool RangeEnabled() const { return m_rangeEnabled; }
    void SetRangeEnabled(bool value);
    /// The name of a range of this side; of the current one for -2; empty for any other value.
    [[nodiscard]] std::wstring RangeName(std::int32_t vData) const;
    /// How many coefficients the selected range has; 0 without one.
    [[nodiscard]] std::int16_t NumCoefficients() const { return m_coefficients.Count(); }
    /// The selected range; ITS90_NORANGE at first. Setting it resizes the coefficients to what the range
    /// needs and keeps their values. A value outside MinRange to MaxRange raises "ITS-90 range out of range."
    /// (0x800401F6); ITS90_NORANGE is always valid.
    [[nodiscard]] EITS90RangeNumber Range() const { return m_range; }
    void SetRange(EITS90RangeNumber value);
    /// The limits of Range; they are not checked, and never a change.
    [[nodiscard]] EITS90RangeNumber MaxRange() const { return m_maxRange; }
    void SetMaxRange(EITS90RangeNumber value) { m_maxRange = value; }
    [[nodiscard]] EITS90RangeNumber MinRange() const { return m_minRange; }
    void SetMinRange(EITS90RangeNumber value) { m_minRange = value; }
    /// A coefficient of the deviation function, dimensionless; any double is accepted. The index
    /// (EITS90LowRangeCoefficients or EITS90HighRangeCoefficients) must be below NumCoefficients; otherwise
    /// "Index out of range" (0x800401F5) is raised and nothing is stored.
    [[nodiscard]] double Coefficients(std::int32_t index) const { return m_coefficients.At(index); }
    void SetCoefficients(std::int32_t index, double value) { Assign(m_coefficients.At(index), value); }
    /// How the dialog shows all coefficients of the range.
    using SharedValueFormat::ValueFormat, SharedValueFormat::SetValueFormat;
    /// Fills a list with "<none>" and, unless MaxRange is ITS90_NORANGE, the ranges from MinRange to
    /// MaxRange, each with its number as item data. Selects nothing.
    void FillRangeCombo(ListControl& ctrl) const;

    using QuorObject::WriteToFile, QuorObject::ReadFromFile;

    /// Sets the value to 0 that the object keeps behind its last coefficient (SettingsObject).
    void ClearSpareValues();

    /// How many coefficients a range of this side has, whether it is selected or not; 0 for any other value.
    [[nodiscard]] std::int16_t CoefficientsOf(std::int32_t range) const;

protected:
    /// A range of the scale, as a row of the table of its side.
    struct Row {
        EITS90RangeNumber range; ///< the number
        EStringId name;          ///< the name in the string table
        std::int16_t count;      ///< how many coefficients it has
    };
    /// What distinguishes the ranges below and above the triple point of water.
    struct Side {
        const wchar_t* className;        ///< the source of errors
        EITS90RangeNumber minRange;      ///< MinRange at first
        EITS90RangeNumber maxRange;      ///< MaxRange at first
        EITS90RangeNumber firstOfItsOwn; ///< the lowest range that RangeEnabled False may select
        std::int32_t highestIndex;       ///< of a coefficient
        const Row* rows;                 ///< all ranges of the side
        std::size_t rowCount;            ///< how many
    };
    /// A number below that of every range.
    static constexpr EITS90RangeNumber lowestRange{std::numeric_limits<std::int32_t>::min()};

    /// `side` must live as long as the program.
    CQuorITS90Range(std::shared_ptr<Platform> platform, const Side& side);

private:
    [[nodiscard]] const Row* FindRow(std::int32_t range) const;
    void WriteRecord(RecordWriter& record) const override;
    void ReadRecord(RecordReader& record) override;

    const Side& m_side;
    bool m_showCoefRange = true;
    bool m_allowChangeRange = true;
    bool m_rangeEnabled = true;
    EITS90RangeNumber m_range = ITS90_NORANGE;
    EITS90RangeNumber m_minRange;
    EITS90RangeNumber m_maxRange;
    SpareArray<double> m_coefficients;
};

} // namespace QuorConversions
