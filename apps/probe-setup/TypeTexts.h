#pragma once

#include "apps/probe-setup/ProbeDocument.h"

#include <QCoreApplication>
#include <QString>

namespace ProbeSetup {

/// How conversion types are called in the window. Several types share a name in the library, or have none:
/// here each says what sets it apart.
class TypeTexts {
    Q_DECLARE_TR_FUNCTIONS(TypeTexts)

public:
    /// The conversion of a probe: `name` is what its settings call themselves, or its type where it has none.
    [[nodiscard]] static QString OfProbe(ProbeType type, const QString& name);
    /// The conversion of a probe of this type that is new.
    [[nodiscard]] static QString OfConversion(const TypeChoice& choice);
    /// A type to choose.
    [[nodiscard]] static QString OfChoice(const TypeChoice& choice);
};

} // namespace ProbeSetup
