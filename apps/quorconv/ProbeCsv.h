#pragma once

#include "QuorConversions/core/EQuorConversionType.h"
#include "apps/quorconv/Arguments.h"
#include "apps/quorconv/Batch.h"
#include "apps/quorconv/Csv.h"
#include "apps/quorconv/ProbeReader.h"
#include "apps/quorconv/Records.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quorconv {

/// How numbers are spelled in a table; never guessed.
enum class DecimalSign { Point, Comma };

/// How a table is spelled.
struct CsvStyle {
    std::wstring decimal;   ///< "point" or "comma"
    std::wstring separator; ///< "comma", "semicolon" or "tab"
    /// Declares "--decimal" and "--separator".
    void Declare(Arguments& arguments);
    /// Raises UsageError when they say something, for an input or output that is no table.
    void RequireNone() const;
    [[nodiscard]] DecimalSign Decimal() const;
    [[nodiscard]] CsvSeparator Separator() const;
};

/// Probes of one type as a table: a line a probe, with the columns "section", "type" and one for each key
/// that one of them has, with its name and unit in brackets: "Coefficients1 [ALPHA, 1/degC]". A field is
/// empty where the record does not have the key.
class CsvTable {
public:
    CsvTable(QuorConversions::EQuorConversionType type, const CsvStyle& style)
        : m_type(type), m_decimal(style.Decimal()), m_separator(style.Separator()) {}
    void Add(const ProbeValues& probe);
    void Print(std::ostream& out) const;

private:
    using Paths = std::vector<std::wstring>;
    [[nodiscard]] Paths Columns() const;
    [[nodiscard]] std::size_t LayoutOf(const ProbeValues& probe);
    void AddField(std::string_view field);

    QuorConversions::EQuorConversionType m_type;
    DecimalSign m_decimal;
    CsvSeparator m_separator;
    std::vector<Paths> m_layouts;                            // most records of a type have the same keys
    std::unordered_map<std::size_t, std::size_t> m_layoutOf; // by the shapes of probes
    std::vector<std::size_t> m_rows;                         // the layout of each
    std::string m_fields;                                    // of all rows, ready
    std::vector<std::uint32_t> m_lengths;                    // of the fields
};

/// Reads a table and calls `use` with each of its lines, and its number. Columns may stand in any order, and
/// without the brackets; what stands in brackets must be the name and the unit of the key. `type` is that of
/// a table without the column, or empty; what the column says must be the same type. What is wrong goes into
/// `batch`, with line and column.
void ReadProbeTable(std::string_view text, const std::wstring& place, const CsvStyle& style,
                    const std::wstring& type, Batch& batch,
                    const std::function<void(const GivenProbe&, std::size_t line)>& use);

} // namespace quorconv
