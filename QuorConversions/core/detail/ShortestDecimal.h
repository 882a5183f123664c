#pragma once

#include <array>
#include <cstddef>

namespace QuorConversions {

/// The shortest decimal text that reads back to a double, as digits: 0.d1d2d3... times ten to the power of
/// `point`. The last digit is never a zero; zero has no digits and its point at 0.
class ShortestDecimal {
public:
    std::size_t count = 0;
    int point = 0;

    /// `magnitude` is finite and not negative.
    explicit ShortestDecimal(double magnitude);

    /// Rounds half away from zero to the first `kept` digits; the result may be zero, or one place longer.
    void Round(int kept);

    /// The digit `index` places to the right of the first one; zeros stand on both sides of the digits.
    [[nodiscard]] wchar_t At(int index) const {
        const auto place = static_cast<std::size_t>(index); // beyond all digits when negative
        return place < count ? static_cast<wchar_t>(m_text[place + 1]) : L'0';
    }

private:
    std::array<char, 24> m_text{}; ///< "1.2345678901234567e-308"; d1 then takes the place of the point
};

} // namespace QuorConversions
