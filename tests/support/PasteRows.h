#pragma once

#include "QuorIniFile/Utf8.h"

#include <algorithm>
#include <functional>
#include <string>

namespace Support {

/// What becomes of a text that is pasted.
enum PasteOutcome {
    isNumber,   ///< `number` is pasted
    isTold,     ///< `number` is pasted, and the user is told what was read
    isForeign,  ///< `number` is pasted; that it is no R0 in ohms is told where it is pasted as one
    isNoNumber, ///< nothing is pasted
    isTwofold,  ///< nothing is pasted: there are two readings
};

struct PasteRow {
    const wchar_t* text;
    const wchar_t* separator;
    PasteOutcome outcome;
    const wchar_t* number = L"";
};

inline const wchar_t* const both =
    nullptr; ///< the same under both separators, but for the separator in the number

inline const PasteRow pasteRows[] = {
    // Plain numbers
    {L"100.0123", L".", isNumber, L"100.0123"},
    {L"100.0123", L",", isNumber, L"100,0123"},
    {L"5", both, isNumber, L"5"},
    {L"5.", both, isNumber, L"5."},
    {L".5", both, isNumber, L".5"},
    {L"007", both, isNumber, L"007"},
    {L"0.30000000000000004", both, isNumber, L"0.30000000000000004"},
    {L"1.234567890123456789012345678901234567890", both, isNumber,
     L"1.234567890123456789012345678901234567890"},
    {L"100.0100", both, isNumber, L"100.0100"},
    {L"", both, isNoNumber},
    {L"   ", both, isNoNumber},
    {L".", both, isNoNumber},
    {L",", both, isNoNumber},
    {L"-", both, isNoNumber},
    {L"abc", both, isNoNumber},
    {L"NaN", both, isNoNumber},
    {L"Infinity", both, isNoNumber},
    {L"0x1F", both, isNoNumber},

    // Signs
    {L"-5.5", both, isNumber, L"-5.5"},
    {L"+5.5", both, isNumber, L"+5.5"},
    {L"\u22122.3502171E-4", both, isNumber, L"-2.3502171E-4"},
    {L"\u20102.5", both, isNumber, L"-2.5"},
    {L"\u20112.5", both, isNumber, L"-2.5"},
    {L"\u20122.5", both, isNumber, L"-2.5"},
    {L"\u20132.5", both, isNumber, L"-2.5"},
    {L"\uFE632.5", both, isNumber, L"-2.5"},
    {L"\uFF0D2.5", both, isNumber, L"-2.5"},
    {L"\uFF0B2.5", both, isNumber, L"+2.5"},
    {L"\u2212 2.5", both, isNumber, L"-2.5"},
    {L"- 2.5", both, isTwofold},
    {L"\u2013 2.5", both, isTwofold},
    {L"-\u00A02.5", both, isTwofold},
    {L"A4 = - 2.5", both, isForeign, L"-2.5"},
    {L"A4 = \u2013 2.5", both, isForeign, L"-2.5"},
    {L"A4: - 2.5", both, isTwofold},
    {L"A4: -2.5", both, isForeign, L"-2.5"},
    {L"--2.5", both, isNoNumber},
    {L"+-2.5", both, isNoNumber},
    {L"2.5-", both, isNoNumber},
    {L"2.5\u2212", both, isNoNumber},
    {L"\u20142.5", both, isNoNumber}, // em dash
    {L"\u20152.5", both, isNoNumber}, // horizontal bar
    {L"\u00AD2.5", both, isNoNumber}, // soft hyphen
    {L"2\u00AD5", both, isNoNumber},  // soft hyphen
    {L"\u207B2.5", both, isNoNumber}, // superscript minus
    {L"\uF02D2.5", both, isNoNumber}, // the minus of a symbol font, for private use
    {L"\u001E2.5", both, isNoNumber}, // a control character
    {L"\u00112.5", both, isNoNumber}, // a control character
    {L"2.5\u0007", both, isNoNumber}, // a control character
    {L"~2.5", both, isNoNumber},
    {L"<2.5", both, isNoNumber},
    {L"\u200E2.5", both, isNoNumber}, // a mark of direction

    // Blanks
    {L" 2.5 ", both, isNumber, L"2.5"},
    {L"\t2.5\r\n", both, isNumber, L"2.5"},
    {L"\f2.5\v", both, isNumber, L"2.5"},
    {L"2\f5", both, isNoNumber},
    {L"\u2028\u00852.5\u2029", both, isNumber, L"2.5"},
    {L"\uFEFF2.5\u200B", both, isNumber, L"2.5"},
    {L"1 234.5", both, isTold, L"1234.5"},
    {L"1\u00A0234.5", both, isTold, L"1234.5"},
    {L"1\u2009234\u202F567", both, isTold, L"1234567"},
    {L"1\u16802\u2003", both, isNoNumber},
    {L"1\u2007234.5", both, isTold, L"1234.5"},
    {L"1\u205F234.5", both, isTold, L"1234.5"},
    {L"1\u3000234.5", both, isTold, L"1234.5"},
    {L"1\u200B234.5", both, isTold, L"1234.5"},
    {L"1\uFEFF234.5", both, isTold, L"1234.5"},
    {L"1 \u200B234.5", both, isTold, L"1234.5"},
    {L"100.\u200B012", both, isTold, L"100.012"},
    {L"-\u200B5", both, isNumber, L"-5"},
    {L"\uFEFF-\uFEFF\u200B5.\uFEFF5E\u200B-\u200B3\u200B", both, isNumber, L"-5.5E-3"},
    {L"R\u200B0 = 5\u200B\u03A9", both, isNumber, L"5"},
    {L"12\u200B34.5", both, isNoNumber},
    {L"0.003 908 3", both, isTold, L"0.0039083"},
    {L"0.003 908 31", both, isTold, L"0.00390831"},
    {L"1 234.567 89", both, isTold, L"1234.56789"},
    {L"1234.567 89", both, isTold, L"1234.56789"},
    {L"100 200", both, isTold, L"100200"},
    {L"R0 = 100 200", both, isTold, L"100200"},
    {L"1 100.012", both, isTold, L"1100.012"}, // or the number of a row, and a value
    {L"100.012 1", both, isTold, L"100.0121"}, // or a value, and a footnote
    {L"1  234.5", both, isTwofold},
    {L"1\t234.5", both, isNoNumber},
    {L"1\n234.5", both, isNoNumber},
    {L"12 34.5", both, isNoNumber},
    {L"1234 567.5", both, isNoNumber},
    {L"0 123.5", both, isNoNumber},
    {L"0.12 345", both, isNoNumber},
    {L"0.003 9083", both, isNoNumber},
    {L"1 2", both, isNoNumber},
    {L"1'234.5", both, isNumber, L"1234.5"},
    {L"1\u2019234\u2019567.5", both, isNumber, L"1234567.5"},
    {L"0.123'456", both, isNoNumber},
    {L"1'23.5", both, isNoNumber},
    {L"'123", both, isNoNumber},
    {L"1 234'567", both, isNoNumber},

    // Points and commas
    {L"1,234.5", both, isTold, L"1234.5"},
    {L"1.234,5", both, isTold, L"1234.5"},
    {L"1,234,567.8", both, isTold, L"1234567.8"},
    {L"1.234.567,8", both, isTold, L"1234567.8"},
    {L"1,234.567", both, isTold, L"1234.567"},
    {L"1.234.567", both, isTold, L"1234567"},
    {L"100,200,300", both, isTold, L"100200300"}, // or three numbers
    {L"12.100.200", both, isTold, L"12100200"},
    {L"1,100.012", both, isTold, L"1100.012"}, // or the number of a row, and a value
    {L"2,100.0123", both, isTold, L"2100.0123"},
    {L"12,345.6", both, isNumber, L"12345.6"},
    {L"1,234,567", both, isTold, L"1234567"},
    {L"1,234,567.8,9", both, isNoNumber},
    {L"1.234,567,8", both, isNoNumber},
    {L"1,23.5", both, isNoNumber},
    {L"1.234.56", both, isNoNumber},
    {L"0,123.4", both, isNoNumber},
    {L"0.123.456", both, isNoNumber},
    {L"1 234,567.8", both, isNoNumber},
    {L"1..5", both, isNoNumber},
    {L"25.48317", both, isNumber, L"25.48317"},
    {L"10.000", both, isTold, L"10.000"},
    {L"10.000 \u03A9", both, isTold, L"10.000"},
    {L"-1.234", both, isTold, L"-1.234"},
    {L"1.234E-7", both, isNumber, L"1.234E-7"},
    {L"12.345E-7", both, isTold, L"12.345E-7"},
    {L"1234.567", both, isNumber, L"1234.567"},
    {L"0.123", both, isNumber, L"0.123"},
    {L"0,00385", L",", isNumber, L"0,00385"},
    {L"10,000", L",", isTold, L"10,000"},
    {L"100,012", L",", isTold, L"100,012"},
    {L"1,5", L",", isNumber, L"1,5"},
    {L"1,5", L".", isNumber, L"1.5"},
    {L"0,003", L".", isNumber, L"0.003"},
    {L"-0,003", L".", isNumber, L"-0.003"},
    {L",003", L".", isNumber, L".003"},
    {L"0,00385", L".", isNumber, L"0.00385"},
    {L"00,123", L".", isNumber, L"00.123"},
    {L"01,234", L".", isNumber, L"01.234"},
    {L"01.234", both, isNumber, L"01.234"},
    {L"25,48317", L".", isNumber, L"25.48317"},
    {L"1234,567", L".", isNumber, L"1234.567"},
    {L"1 234,567", L".", isTold, L"1234.567"},
    {L"1,234 567", L".", isTold, L"1.234567"},
    {L"-5,775E-7", L".", isNumber, L"-5.775E-7"},
    {L"-5,775 \u00D7 10\u207B\u2077", L".", isNumber, L"-5.775E-7"},
    {L"-57,755E-7", L".", isTwofold},
    {L"100,012", L".", isTwofold},
    {L"1,234", L".", isTwofold},
    {L"100,012 \u03A9", L".", isTwofold},
    {L"R0 = 100,012", L".", isTwofold},

    // Another separator than point and comma
    {L"1\u066B5", L"\u066B", isNumber, L"1\u066B5"},
    {L"1.5", L"\u066B", isNumber, L"1\u066B5"},
    {L"1,234", L"\u066B", isTwofold},
    {L"1.234\u066B567", L"\u066B", isNoNumber},
    {L"1\u066B5", L".", isNoNumber},

    // Exponents
    {L"1E5", both, isNumber, L"1E5"},
    {L"3.9083E-03", both, isNumber, L"3.9083E-03"},
    {L"3.9083e\u22123", both, isNumber, L"3.9083E-3"},
    {L"3.9083e+3", both, isNumber, L"3.9083E+3"},
    {L"3.9083D-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083 E-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083 E3", both, isNoNumber},
    {L"3.9083E", both, isNoNumber},
    {L"3.9083E-", both, isNoNumber},
    {L"3.9083E - 3", both, isNoNumber},
    {L"3.9083E-3E-3", both, isNoNumber},
    {L"3.9083 \u00D7 10^-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083 \u00D7 10\u207B\u00B3", both, isNumber, L"3.9083E-3"},
    {L"3.9083\u00D710\u00B2", both, isNumber, L"3.9083E2"},
    {L"3.9083 \u00B7 10\u207B\u00B9\u2070", both, isNumber, L"3.9083E-10"},
    {L"3.9083 \u22C5 10^\u22123", both, isNumber, L"3.9083E-3"},
    {L"3.9083 \u2219 10^3", both, isNumber, L"3.9083E3"},
    {L"3.9083 x 10**-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083*10^-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083 \u00D7 10 -3", both, isNumber, L"3.9083E-3"},
    {L"3.9083 \u00D7 10 \u22123", both, isNumber, L"3.9083E-3"},
    {L"3.9083 \u00D7 10-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083 \u00D7 10\u20133", both, isNumber, L"3.9083E-3"},
    {L"3.9083 x 10+3", both, isNumber, L"3.9083E+3"},
    {L"3.9083 X 10-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083X10^-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083\uFF25-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083\uFF45-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083 X 104", both, isTwofold},
    {L"3.9083 x 104", both, isTwofold},
    {L"3.9083 x 10 4", both, isTwofold},
    {L"3.9083 x 10", both, isNoNumber},
    {L"3.9083 x 10 - 3", both, isNoNumber},
    {L"3.9083 x 2", both, isNoNumber},
    {L"3.9083 10-3", both, isNoNumber},
    {L"10^-3", both, isNoNumber},
    {L"10\u207B\u00B3", both, isNoNumber},
    {L"3.9083 \u00D7 10^(-3)", both, isNumber, L"3.9083E-3"},
    {L"3.9083\u00D710^(\u22123)", both, isNumber, L"3.9083E-3"},
    {L"3.9083 x 10^{-3}", both, isNumber, L"3.9083E-3"},
    {L"3.9083 \u00B7 10^{\u22123}", both, isNumber, L"3.9083E-3"},
    {L"3.9083*10**(-3)", both, isNumber, L"3.9083E-3"},
    {L"3.9083 x 10^(3)", both, isNumber, L"3.9083E3"},
    {L"3.9083 x 10^(+12)", both, isNumber, L"3.9083E+12"},
    {L"3.9083 x 10 ^-3", both, isNumber, L"3.9083E-3"},
    {L"3.9083 x 10^(-3", both, isNoNumber},
    {L"3.9083 x 10^(-3}", both, isNoNumber},
    {L"3.9083 x 10^-3)", both, isNoNumber},
    {L"3.9083 x 10(-3)", both, isNoNumber},
    {L"3.9083 x 10^()", both, isNoNumber},
    {L"3.9083 x 10^(- 3)", both, isNoNumber},
    {L"3.9083 x 10^-3.5", both, isNoNumber},
    {L"3.9083 x 10 \u00B2", both, isNoNumber}, // or ten, and a footnote
    {L"3.908 10E-3", both, isTwofold},         // where the times sign is lost
    {L"3.908 10 \u00D7 10-3", both, isTwofold},
    {L"3.9083 10E-3", both, isTwofold},
    {L"3.908 100E-3", both, isTold, L"3.908100E-3"},
    {L"3.9083x10E-3", both, isNoNumber},
    {L"3.9083.10-3", both, isNoNumber},
    {L"3\u00B79083", both, isNoNumber},
    {L"\uFF13.\uFF19\uFF10", both, isNumber, L"3.90"},
    {L"3.9 \u00D7 \uFF11\uFF10\u207B\u00B3", both, isNumber, L"3.9E-3"},
    {L"1E400", both, isNumber, L"1E400"},
    {L"1E-400", both, isNumber, L"1E-400"},

    // Units
    {L"100.01\u03A9", both, isNumber, L"100.01"},
    {L"100.01 \u2126", both, isNumber, L"100.01"},
    {L"100.01 ohm", both, isNumber, L"100.01"},
    {L"100.01ohms", both, isNumber, L"100.01"},
    {L"-38.8344 \u00B0C", both, isForeign, L"-38.8344"},
    {L"-38.8344\u2103", both, isForeign, L"-38.8344"},
    {L"273.16 K", both, isForeign, L"273.16"},
    {L"273.16K", both, isNoNumber},
    {L"10.5 mV", both, isForeign, L"10.5"},
    {L"0.0405 mV/\u00B0C", both, isForeign, L"0.0405"},
    {L"0.0405 mV/K", both, isForeign, L"0.0405"},
    {L"3.9083E-3 1/\u00B0C", both, isForeign, L"3.9083E-3"},
    {L"3.9083E-31/\u00B0C", both, isNoNumber},
    {L"3.9083 \u00D7 10\u207B\u00B3/\u00B0C", both, isForeign, L"3.9083E-3"},
    {L"3.9083E-3/\u00B0C", both, isForeign, L"3.9083E-3"},
    {L"3.9083E-3 / K", both, isNoNumber},
    {L"3.9083E-3 /K", both, isForeign, L"3.9083E-3"},
    {L"3.9081/K", both, isNoNumber}, // or 3.908 and "1/K"
    {L"3.9083/2", both, isNoNumber},
    {L"-38.8344 \u00BAC", both, isForeign, L"-38.8344"},
    {L"100.01 OHM", both, isNumber, L"100.01"},
    {L"100.01 OHMS", both, isNumber, L"100.01"},
    {L"100.01 MOHM", both, isNoNumber},
    {L"3.9083E-3 1/K", both, isForeign, L"3.9083E-3"},
    {L"3.9083 1/\u00B0C", both, isForeign, L"3.9083"},
    {L"3.9083E-3 \u00B0C\u207B\u00B9", both, isForeign, L"3.9083E-3"},
    {L"-5.775E-7 \u00B0C\u207B\u00B2", both, isForeign, L"-5.775E-7"},
    {L"-5.775E-7\u00B0C\u207B\u00B3", both, isForeign, L"-5.775E-7"},
    {L"-4.183E-12 \u2103\u207B\u2074", both, isForeign, L"-4.183E-12"},
    {L"3.9083E-3 \u00B0C-1", both, isForeign, L"3.9083E-3"},
    {L"3.9083E-3 \u00B0C\u22121", both, isForeign, L"3.9083E-3"},
    {L"3.9083E-3 K\u207B\u00B9", both, isForeign, L"3.9083E-3"},
    {L"3.9083E-3K\u207B\u00B9", both, isForeign, L"3.9083E-3"},
    {L"3.9083E-3 K-1", both, isForeign, L"3.9083E-3"},
    {L"3.9083E-3K-1", both, isNoNumber},
    {L"3.9083E-3 K^-1", both, isForeign, L"3.9083E-3"},
    {L"3.9083E-3K^-1", both, isForeign, L"3.9083E-3"},
    {L"3.9083E-3 K^\u22121", both, isForeign, L"3.9083E-3"},
    {L"3.9083E-3 K**-1", both, isForeign, L"3.9083E-3"},
    {L"3.9083E-3 K^(-1)", both, isForeign, L"3.9083E-3"},
    {L"3.9083E-3 K^{-1}", both, isForeign, L"3.9083E-3"},
    {L"-5.775E-7 \u2103^-2", both, isForeign, L"-5.775E-7"},
    {L"-5.775E-7 K\u22122", both, isForeign, L"-5.775E-7"},
    {L"-4.183E-12 \u00B0C^-4", both, isForeign, L"-4.183E-12"},
    {L"-4.183E-12\u00B0C^{\u22124}", both, isForeign, L"-4.183E-12"},
    {L"3.9083E-3 K^1", both, isNoNumber},
    {L"3.9083E-3 K\u00B9", both, isNoNumber}, // a footnote
    {L"3.9083E-3 K^-5", both, isNoNumber},
    {L"3.9083E-3 K^-11", both, isNoNumber},
    {L"3.9083E-3 K^- 1", both, isNoNumber},
    {L"3.9083E-3 K+1", both, isNoNumber},
    {L"100.01 \u03A9^-1", both, isNoNumber},
    {L"100.01 \u03A9\u00B9", both, isNoNumber}, // a footnote
    {L"25.5 mV\u207B\u00B9", both, isNoNumber},
    {L"3.9083 \u00D7 10\u207B\u00B3 \u00B0C\u207B\u00B9", both, isForeign, L"3.9083E-3"},
    {L"1 234.5 \u03A9", both, isTold, L"1234.5"},
    {L"5 k\u03A9", both, isNoNumber},
    {L"5k\u03A9", both, isNoNumber},
    {L"5 mK", both, isNoNumber},
    {L"5 m\u03A9", both, isNoNumber},
    {L"5 \u00B5V", both, isNoNumber},
    {L"5 V", both, isNoNumber},
    {L"5 %", both, isNoNumber},
    {L"5 ppm", both, isNoNumber},
    {L"5 \u00B0F", both, isNoNumber},
    {L"\u03A9", both, isNoNumber},
    {L"\u03A9 5", both, isNoNumber},

    // Names
    {L"R0 = 100.01 \u03A9", both, isNumber, L"100.01"},
    {L"R0=100.01", both, isNumber, L"100.01"},
    {L"R0\uFF1D100.01", both, isNumber, L"100.01"},
    {L"R0\uFF1A 100.01", both, isNumber, L"100.01"},
    {L"R\u2080 = 100.01", both, isNumber, L"100.01"},
    {L"ALPHA: 0.00385", both, isForeign, L"0.00385"},
    {L"\u03B1 = 0.00385", both, isForeign, L"0.00385"},
    {L"A[7]: -1.5E-4", both, isForeign, L"-1.5E-4"},
    {L"a(4) = 1.5", both, isForeign, L"1.5"},
    {L"R(TPW) = 25.5", both, isForeign, L"25.5"},
    {L"R(H2O): 25.5", both, isForeign, L"25.5"},
    {L"R(H\u2082O) = 25.5", both, isForeign, L"25.5"},
    {L"W(Ga) = 1.11813", both, isForeign, L"1.11813"},
    {L"R(TPW)/\u03A9 = 25.5", both, isForeign, L"25.5"},
    {L"R(TPW) [\u03A9] = 25.5", both, isForeign, L"25.5"},
    {L"R(TPW) (ohm) = 25.5", both, isForeign, L"25.5"},
    {L"R(273.16 K) = 25.5", both, isForeign, L"25.5"},
    {L"R(0,01 \u00B0C) = 25.5", both, isForeign, L"25.5"},
    {L"A [K^-1] = 3.9083E-3", both, isForeign, L"3.9083E-3"},
    {L"A (\u00B0C\u207B\u00B9): 3.9083E-3", both, isForeign, L"3.9083E-3"},
    {L"R(0 \u00B0C) = 100.01", both, isNumber, L"100.01"},
    {L"R(0.01 \u00B0C) = 25.5", both, isForeign, L"25.5"},
    {L"R0/\u03A9 = 100.01", both, isNumber, L"100.01"},
    {L"R0 [\u03A9]: 100.01", both, isNumber, L"100.01"},
    {L"Temperature 2: 100.01", both, isForeign, L"100.01"},
    {L"Temperature2: 100.01", both, isForeign, L"100.01"},
    {L"Voltage1 = 100.01", both, isForeign, L"100.01"},
    {L"Coefficient A = 3.9E-3", both, isForeign, L"3.9E-3"},
    {L"C15 = 3.9E-3", both, isForeign, L"3.9E-3"},
    {L"Coefficient 3: 3.9E-3", both, isForeign, L"3.9E-3"},
    {L"Coefficient 12: 3.9E-3", both, isForeign, L"3.9E-3"},
    {L"Temperature 10: 100.01", both, isForeign, L"100.01"},
    {L"R25 = 100.01", both, isForeign, L"100.01"},
    {L"T90 = 100.01", both, isForeign, L"100.01"},
    {L"W(T90): 1.11813", both, isForeign, L"1.11813"},
    {L"Code2: 3.9E-3", both, isForeign, L"3.9E-3"},
    {L"Slope2: 3.9E-3", both, isForeign, L"3.9E-3"},
    {L"BRIDGE2: 3.9E-3", both, isForeign, L"3.9E-3"},
    {L"Gr\u00F6\u00DFe2: 3.9E-3", both, isForeign, L"3.9E-3"},
    {L"Index2: 3.9E-3", both, isForeign, L"3.9E-3"},
    {L"mV (25C): 1.0003", both, isForeign, L"1.0003"},
    {L"R(25 C) = 100.01", both, isForeign, L"100.01"},
    {L"= 100.01", both, isNumber, L"100.01"},
    {L"R0 =", both, isNoNumber},
    {L"A\u00B710\u00B3 = 3.9083", both, isNoNumber},
    {L"A x 10^3 = 3.9083", both, isNoNumber},
    {L"A x 103 = 3.9083", both, isNoNumber},
    {L"A x1000 = 3.9083", both, isNoNumber},
    {L"A E3 = 3.9083", both, isNoNumber},
    {L"Ax10 = 3.9083", both, isNoNumber},
    {L"A_x10: 3.9083", both, isNoNumber},
    {L"\u03B1x10 = 3.9083", both, isNoNumber},
    {L"ALPHAx10 = 3.9083", both, isNoNumber},
    {L"Ae3 = 3.9083", both, isNoNumber},
    {L"AE3: 3.9083", both, isNoNumber},
    {L"ALPHAe3 = 3.9083", both, isNoNumber},
    {L"Thetae3 = 3.9083", both, isNoNumber},
    {L"CoeffE3 = 3.9083", both, isNoNumber},
    {L"coeffe3 = 3.9083", both, isNoNumber},
    {L"RTPWe3 = 0.1", both, isNoNumber},
    {L"ValueE3 = 3.9083", both, isNoNumber},
    {L"A_e3 = 3.9083", both, isNoNumber},
    {L"Ae_3 = 3.9083", both, isNoNumber},
    {L"Coefficientx10 = 3.9083", both, isNoNumber},
    {L"A 10 = 3.9083", both, isNoNumber},
    {L"Time 12:30", both, isNoNumber},
    {L"AD3 = 3.9083", both, isNoNumber},
    {L"Ax\u2081\u2080 = 3.9083", both, isNoNumber},
    {L"A x10^3 = 3.9083", both, isNoNumber},
    {L"Ax10^3 = 3.9083", both, isNoNumber},
    {L"Ax10\u207B\u00B3 = 3.9083", both, isNoNumber},
    {L"A (Ax10) = 3.9083", both, isNoNumber},
    {L"A[4]x10 = 3.9083", both, isNoNumber},
    {L"Ax10/\u03A9 = 3.9083", both, isNoNumber},
    {L"A103 = 3.9083", both, isNoNumber},
    {L"1000 A = 3.9083", both, isNoNumber},
    {L"R0/k\u03A9 = 0.1", both, isNoNumber},
    {L"R0 (k\u03A9) = 0.1", both, isNoNumber},
    {L"R0 (k) = 0.1", both, isNoNumber},
    {L"R0 (M) = 0.1", both, isNoNumber},
    {L"R0 (kohm) = 0.1", both, isNoNumber},
    {L"R0 (uohm) = 0.1", both, isNoNumber},
    {L"R0 (\u00B5ohm) = 0.1", both, isNoNumber},
    {L"R0 \u03BCOhms = 0.1", both, isNoNumber},
    {L"R0 nohm = 0.1", both, isNoNumber},
    {L"R0 (pohms) = 0.1", both, isNoNumber},
    {L"R0 (pV) = 0.1", both, isNoNumber},
    {L"R0 (Mohm) = 0.1", both, isNoNumber},
    {L"R0 (gohms) = 0.1", both, isNoNumber},
    {L"R0 in milliohms: 0.1", both, isNoNumber},
    {L"R(TPW) (k\u03A9) = 0.1", both, isNoNumber},
    {L"R(TPW)/k\u03A9 = 0.1", both, isNoNumber},
    {L"R(TPW)\u00B710\u00B3 = 0.1", both, isNoNumber},
    {L"A (x10) = 3.9083", both, isNoNumber},
    {L"A (E3) = 3.9083", both, isNoNumber},
    {L"A (10^3) = 3.9083", both, isNoNumber},
    {L"A (0.001) = 3.9083", both, isNoNumber},
    {L"A (-3) = 3.9083", both, isNoNumber},
    {L"A (1000) = 3.9083", both, isNoNumber},
    {L"A () = 3.9083", both, isNoNumber},
    {L"A) = 3.9083", both, isNoNumber},
    {L"(A) = 3.9083", both, isNoNumber},
    {L"ln(R(TPW)) = 3.2", both, isNoNumber},
    {L"R(ln T) = 3.2", both, isNoNumber},
    {L"exp(R) = 3.2", both, isNoNumber},
    {L"R0 k\u03A9: 0.1", both, isNoNumber},
    {L"U [\u00B5V] = 0.1", both, isNoNumber},
    {L"U \u00B5V = 0.1", both, isNoNumber},
    {L"T mK = 0.1", both, isNoNumber},
    {L"A/ppm = 0.1", both, isNoNumber},
    {L"A in % = 0.1", both, isNoNumber},
    {L"-a4 = 0.1", both, isNoNumber},
    {L"\u2212a4 = 0.1", both, isNoNumber},
    {L"minus a4 = 0.1", both, isNoNumber},
    {L"ln(R0) = 4.6", both, isNoNumber},
    {L"lnR = 4.6", both, isNoNumber},
    {L"lgR0 = 2", both, isNoNumber},
    {L"minusA = 0.1", both, isNoNumber},
    {L"A squared = 0.1", both, isNoNumber},
    {L"R0 (Megohm) = 0.1", both, isNoNumber},
    {L"R0 in GOhm: 0.1", both, isNoNumber},
    {L"R0 (mR) = 0.1", both, isNoNumber},
    {L"T (mC) = 0.1", both, isNoNumber},
    {L"log R0 = 2", both, isNoNumber},
    {L"1/A = 2", both, isNoNumber},
    {L"A\u00B2 = 2", both, isNoNumber},
    {L"A/B = 2", both, isNoNumber},
    {L"A = B = 2", both, isNoNumber},
    {L"12:30", both, isNoNumber},

    {L"T K = 273.16", both, isForeign, L"273.16"},
    {L"R0 k = 0.1", both, isNoNumber},
    {L"R0 M: 0.1", both, isNoNumber},
    {L"A in Promille: 3.9", both, isNoNumber},
    {L"A (thousandths) = 3.9", both, isNoNumber},
    {L"A, 10\u207B\u00B3: 3.9083", both, isNoNumber},
    {L"A 10\u207B\u00B3 = 3.9083", both, isNoNumber},
    {L"A (10\u207B\u00B3/\u00B0C) = 3.9083", both, isNoNumber},
    {L"A 103: 3.9083", both, isNoNumber},
    {L"R0 100.012", both, isNoNumber},
    {L"R0 \u2248 100.012", both, isNoNumber},
    {L"R0=100.012;A=3.9E-3", both, isNoNumber},
    {L"\uFB01x = 5.5", both, isNoNumber}, // a ligature
    {L"U(R0) = 0.002", both, isForeign, L"0.002"},
    {L"R\u2080 = 100,012", L".", isTwofold},

    // Numbers as they come out of documents
    {L"100.012\u00B9", both, isNoNumber}, // a footnote
    {L"100.012 \u00B9", both, isNoNumber},
    {L"100.012*", both, isNoNumber},
    {L"100.012 \u2020", both, isNoNumber},
    {L"100.012a", both, isNoNumber},
    {L"100.012 (1)", both, isNoNumber},
    {L"3.9083E-3*", both, isNoNumber},
    {L"3.9083E-3\u00B9", both, isNoNumber},
    {L"3.9083 \u00D7 10\u207B\u00B3 \u00B9", both, isNoNumber},
    {L"3.90\u00AD83E-3", both, isNoNumber}, // a word division that is not seen
    {L"100.012,", both, isTwofold},         // the end of a clause
    {L"100,012.", both, isTwofold},
    {L"100,012. \u03A9", both, isTwofold},
    {L"1,234,567.", both, isTwofold},
    {L"100.012.", both, isNoNumber},
    {L"100,5.", both, isTwofold},
    {L"1.234,56 \u03A9 \u00B1 0.01", both, isNoNumber},
    {L"25.483\u2009170\u20095 \u03A9", both, isTold, L"25.4831705"},
    {L"\u2022 2.35", both, isNoNumber},
    {L"1) 2.35", both, isNoNumber},
    {L"1. 2.35", both, isNoNumber},
    {L"1\u00B4234.5", both, isNoNumber}, // an accent
    {L"1\u00B7234", both, isNoNumber},
    {L"2\u20605.5", both, isNoNumber}, // joined words
    {L"l00.012", both, isNoNumber},
    {L"100.O12", both, isNoNumber},
    {L"2024-05-03", both, isNoNumber},
    {L"03.05.2024", both, isNoNumber},

    // What says more than a number
    {L"100.01 \u00B1 0.02", both, isNoNumber},
    {L"100.01(2)", both, isNoNumber},
    {L"(100.01)", both, isNoNumber},
    {L"[100.01]", both, isNoNumber},
    {L"1/2", both, isNoNumber},
    {L"\u00BD", both, isNoNumber},
    {L"1\u00BD", both, isNoNumber},
    {L"\u0661\u0662", both, isNoNumber},
    {L"\u2460", both, isNoNumber},
    {L"100.01\u00B2", both, isNoNumber},
    {L"1.5; 2.5", both, isNoNumber},
    {L"100\uFF0E5", both, isNoNumber},
};

inline bool IsTaken(const PasteRow& row) {
    return row.outcome == isNumber || row.outcome == isTold || row.outcome == isForeign;
}

/// What a box is expected to advise into which the text of a row is pasted: one that stands alone, R0, in
/// ohms.
inline std::wstring ExpectedAdvice(const PasteRow& row, const std::wstring& number) {
    if (!IsTaken(row)) {
        std::wstring text = row.text;
        const auto first = text.find_first_not_of(L" \t\r\n");
        text = first == std::wstring::npos ? L"" : text.substr(first);
        if (text.find_first_of(L"\t\n") != std::wstring::npos)
            return L"Nothing pasted: there is no room for 2 numbers";
        return L"Nothing pasted: " + (text.empty() ? L"\"\"" : QuorIniFile::EscapeControls(text)) +
               (row.outcome == isTwofold ? L" can be read in two ways" : L" is not a number");
    }
    return number == L"1E400"         ? L"1E400 is too large to be stored"
           : number == L"1E-400"      ? L"0 would be stored for 1E-400"
           : row.outcome == isTold    ? L"Pasted as " + number
           : row.outcome == isForeign ? L"Pasted from " + std::wstring(row.text)
                                      : L"";
}

/// Every row under every separator that it holds for, with the number as it is then.
inline void ForEachPaste(
    const std::function<void(const PasteRow&, const std::wstring& separator, std::wstring number)>& act) {
    for (const PasteRow& row : pasteRows)
        for (const std::wstring separator : {L".", L",", L"\u066B"}) {
            std::wstring number = row.number;
            if (!row.separator && separator != L"\u066B")
                std::replace(number.begin(), number.end(), L'.', separator.front());
            else if (!row.separator || row.separator != separator)
                continue;
            act(row, separator, number);
        }
}

} // namespace Support
