#pragma once

#include "apps/probe-setup/ProbeDocument.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QString>

#include <cstddef>
#include <vector>

class QTextDocument;

namespace ProbeSetup {

/// Probes on paper, a page each, to be laid beside the certificate and signed: name, conversion, every value
/// with all its digits and unit, the file and the time, lines for date and signature.
class ProbeReport {
    Q_DECLARE_TR_FUNCTIONS(ProbeReport)

public:
    /// Writes the pages for these probes, as the document holds them at `time`, into `paper`. `platform`
    /// tells the decimal separator.
    static void Write(ProbeDocument& document, QuorConversions::Platform& platform,
                      const std::vector<std::size_t>& probes, const QDateTime& time, QTextDocument& paper);

private:
    [[nodiscard]] static QString Page(ProbeDocument& document, QuorConversions::Platform& platform,
                                      std::size_t probe, const QDateTime& time, bool isStale);
};

} // namespace ProbeSetup
