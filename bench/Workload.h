#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace Bench {

/// What a host keeps of its probes: each one is a facade record of type 2 in two sections, with four doubles
/// of full precision. The same number of probes is always the same workload; 100,000 make about 25 MB.
class Workload {
public:
    using Coefficients = std::array<double, 4>;

    explicit Workload(std::size_t probes);

    [[nodiscard]] std::size_t Probes() const { return m_coefficients.size(); }
    [[nodiscard]] const Coefficients& CoefficientsOf(std::size_t probe) const {
        return m_coefficients[probe];
    }
    void SetCoefficient(std::size_t probe, std::size_t index, double value) {
        m_coefficients[probe][index] = value;
    }
    /// The names of the two sections of a probe.
    [[nodiscard]] static std::string Section(std::size_t probe);
    [[nodiscard]] static std::string SettingsSection(std::size_t probe);

    /// The file, with a comment in every tenth section. `commentMark` is ';' or, for readers that know no
    /// other, '#'.
    void WriteTo(std::ostream& out, char commentMark = ';') const;

private:
    std::vector<Coefficients> m_coefficients;
};

} // namespace Bench
