#include "bench/Workload.h"

#include <charconv>
#include <ostream>
#include <random>
#include <string_view>

namespace Bench {

Workload::Workload(std::size_t probes) : m_coefficients(probes) {
    std::mt19937_64 random(20261121);
    // R0, ALPHA, DELTA and BETA as probes have them: a check finds nothing to tell.
    constexpr Coefficients usual{100.0, 3.85055E-3, 1.499786, 0.1086338};
    std::uniform_real_distribution<double> deviation(0.999, 1.001);
    for (Coefficients& coefficients : m_coefficients)
        for (std::size_t i = 0; i < usual.size(); ++i)
            coefficients[i] = usual[i] * deviation(random);
}

std::string Workload::Section(std::size_t probe) { return "Probe " + std::to_string(probe); }

std::string Workload::SettingsSection(std::size_t probe) { return Section(probe) + " - Settings"; }

void Workload::WriteTo(std::ostream& out, char commentMark) const {
    for (std::size_t probe = 0; probe < Probes(); ++probe) {
        if (probe % 5 == 0)
            out << commentMark << " certificate " << 4000 + probe << ", calibrated at five fixed points\n";
        out << '[' << Section(probe) << "]\nVersion=1.0\nConversionType=2\n\n[" << SettingsSection(probe)
            << "]\nVersion=1.0\nNumCoefficients=4\nUsePolynomial=False\n";
        for (std::size_t i = 0; i < m_coefficients[probe].size(); ++i) {
            std::array<char, 32> digits{};
            const auto result =
                std::to_chars(digits.data(), digits.data() + digits.size(), m_coefficients[probe][i]);
            out << "Coefficients" << i << '='
                << std::string_view(digits.data(), static_cast<std::size_t>(result.ptr - digits.data()))
                << '\n';
        }
        out << '\n';
    }
}

} // namespace Bench
