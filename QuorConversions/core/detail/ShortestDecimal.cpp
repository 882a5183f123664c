#include "QuorConversions/core/detail/ShortestDecimal.h"

#include <algorithm>
#include <charconv>

namespace QuorConversions {

ShortestDecimal::ShortestDecimal(double magnitude) {
    if (magnitude == 0)
        return;
    const char* const end =
        std::to_chars(m_text.data(), m_text.data() + m_text.size(), magnitude, std::chars_format::scientific)
            .ptr;
    const char* letter = end - 4; // of "e-08" or "e-308"
    if (*letter != 'e')
        --letter;
    std::from_chars(letter[1] == '+' ? letter + 2 : letter + 1, end, point);
    ++point;
    const auto length = static_cast<std::size_t>(letter - m_text.data());
    count = length == 1 ? 1 : length - 1;
    m_text[1] = m_text[0]; // over the decimal point, or the "e" of a single digit
}

void ShortestDecimal::Round(int kept) {
    if (kept >= static_cast<int>(count))
        return;
    const bool up = At(kept) >= L'5';
    const char vanishing = up ? '9' : '0'; // before the cut: a nine carries on, a zero says nothing
    count = static_cast<std::size_t>(std::max(kept, 0));
    while (count > 0 && m_text[count] == vanishing)
        --count;
    if (count > 0 && up) {
        ++m_text[count];
    } else if (up) {
        m_text[++count] = '1';
        ++point;
    } else if (count == 0) {
        point = 0;
    }
}

} // namespace QuorConversions
