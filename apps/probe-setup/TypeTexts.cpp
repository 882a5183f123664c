#include "apps/probe-setup/TypeTexts.h"

#include "QuorConversions/qt/QtText.h"
#include "QuorProbeFile/ProbeTypes.h"

#include <algorithm>
#include <iterator>

namespace ProbeSetup {

using namespace QuorConversions;
using QtToolkit::ToQt;

namespace {

/// What sets a type apart from another one of that name, or names it where the library does not.
struct Distinction {
    EQuorConversionType type;
    const char* text; // %1 is the name
};
constexpr Distinction distinctions[] = {
    {CONV_NONE, QT_TRANSLATE_NOOP("TypeTexts", "No conversion")},
    {CONV_TCTYPEX, QT_TRANSLATE_NOOP("TypeTexts", "%1, deviation points")},
    {CONV_TCTYPEPOLY, QT_TRANSLATE_NOOP("TypeTexts", "%1, deviation polynomial")},
    {CONV_PT100, QT_TRANSLATE_NOOP("TypeTexts", "%1, standard curve")},
    {CONV_PT100R0, QT_TRANSLATE_NOOP("TypeTexts", "%1, R0 of its own")},
    {CONV_ITSSR5, QT_TRANSLATE_NOOP("TypeTexts", "ITS-SR5, ITS-90 in range 5 alone")},
    {CONV_THERMISTOR_OHMS, QT_TRANSLATE_NOOP("TypeTexts", "Thermistor, ohms")},
};

} // namespace

QString TypeTexts::OfProbe(ProbeType type, const QString& name) {
    if (!type)
        return tr("The type cannot be read");
    if (!ConversionEnumerator(*type))
        return tr("Unknown type, code %1").arg(static_cast<int>(*type));
    const auto* const found = std::find_if(std::begin(distinctions), std::end(distinctions),
                                           [&](const Distinction& d) { return d.type == *type; });
    if (found == std::end(distinctions))
        return name;
    const QString text = tr(found->text);
    return text.contains(QLatin1String("%1")) ? text.arg(name) : text;
}

QString TypeTexts::OfConversion(const TypeChoice& choice) {
    // As its settings call themselves when they are new; a type without settings has its name in the table.
    CQuorConversion conversion;
    choice.ApplyTo(conversion);
    return OfProbe(choice.type, ToQt(QuorProbeFile::NameOf(conversion)));
}

QString TypeTexts::OfChoice(const TypeChoice& choice) {
    QString name = OfConversion(choice);
    if (!choice.polynomial)
        return name;
    return *choice.polynomial ? tr("%1, A, B and C").arg(name) : tr("%1, alpha, delta and beta").arg(name);
}

} // namespace ProbeSetup
