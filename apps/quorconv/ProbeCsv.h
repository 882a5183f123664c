#pragma once

#include "QuorConversions/core/EQuorConversionType.h"
#include "apps/quorconv/Probe.h"
#include "apps/quorconv/Records.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quorconv {

/// How numbers are spelled in a table; never guessed.
enum class DecimalSign { Point, Comma };

/// Probes of one type as a table: a line a probe, with the columns "section", "type" and one for each key
/// that one of them has, with its name and unit in brackets: "Coefficients1 [ALPHA, 1/degC]". A field is
/// empty where the record does not have the key.
class CsvTable {
public:
    CsvTable(QuorConversions::EQuorConversionType type, DecimalSign decimal)
        : m_type(type), m_decimal(decimal) {}
    void Add(const Probe& probe);
    [[nodiscard]] std::string Text() const;

private:
    struct Row {
        std::wstring section;
        std::vector<QuorProbeFile::RecordImage::Entry> entries;
    };
    QuorConversions::EQuorConversionType m_type;
    DecimalSign m_decimal;
    std::vector<Row> m_rows;
};

/// A line of such a table.
struct CsvProbe {
    std::size_t line;
    std::wstring section;
    std::wstring type;
    std::vector<Assignment> values;   ///< without those of empty fields
    std::vector<std::size_t> columns; ///< of the values, from 1
};

/// Reads a table and calls `use` with each of its lines. Columns may stand in any order, and without the
/// brackets; what stands in brackets must be the name and the unit of the key. `type` is that of a table
/// without the column, or empty. Raises Problem, which names line and column under `place`.
void ReadProbeTable(std::string_view text, const std::wstring& place, DecimalSign decimal,
                    const std::wstring& type, const std::function<void(const CsvProbe&)>& use);

} // namespace quorconv
