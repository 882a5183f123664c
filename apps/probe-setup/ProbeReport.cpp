#include "apps/probe-setup/ProbeReport.h"

#include "QuorConversions/qt/QtText.h"
#include "apps/probe-setup/ProbeValues.h"
#include "apps/probe-setup/TypeTexts.h"

#include <QStringList>
#include <QTextDocument>

#include <algorithm>
#include <string>

namespace ProbeSetup {

using QuorConversions::QtToolkit::ToQt;

namespace {

QString Cell(const QString& text, const char* style = "") {
    return QStringLiteral("<td style=\"%1\">%2</td>").arg(QLatin1String(style), text.toHtmlEscaped());
}

QString Row(const QString& cells) { return QStringLiteral("<tr>") + cells + QStringLiteral("</tr>"); }

/// With room above it.
QString Table(const QString& rows) {
    return QStringLiteral("<table cellpadding=\"4\" style=\"margin-top:20px\">") + rows +
           QStringLiteral("</table>");
}

} // namespace

void ProbeReport::Write(ProbeDocument& document, QuorConversions::Platform& platform,
                        const std::vector<std::size_t>& probes, const QDateTime& time, QTextDocument& paper) {
    QString html;
    const std::vector<std::size_t> stale = document.StaleAmong(probes);
    for (const std::size_t probe : probes) {
        const QLatin1String newPage(html.isEmpty() ? "" : "page-break-before:always");
        html += QStringLiteral("<h1 style=\"%1\">").arg(newPage) +
                ToQt(document.Name(probe)).toHtmlEscaped() + QStringLiteral("</h1>") +
                Page(document, platform, probe, time,
                     std::find(stale.begin(), stale.end(), probe) != stale.end());
    }
    paper.setHtml(html);
}

QString ProbeReport::Page(ProbeDocument& document, QuorConversions::Platform& platform, std::size_t probe,
                          const QDateTime& time, bool isStale) {
    const auto line = [](const QString& name, const QString& text) { return Row(Cell(name) + Cell(text)); };
    const QString path = ToQt(document.Path());
    const QString conversion = TypeTexts::OfProbe(
        document.Type(probe), ToQt(document.ConversionName(document.ConversionNumber(probe))));
    QString page = Table(
        line(tr("Conversion:"), conversion) + line(tr("File:"), path.isEmpty() ? tr("not saved yet") : path) +
        (document.IsChanged(probe) ? line(tr("State:"), tr("changed and not saved yet")) : QString()) +
        (isStale ? line(tr("State:"), tr("another program has changed it in the file in the meantime"))
                 : QString()) +
        line(tr("Printed:"), time.toString(QStringLiteral("yyyy-MM-dd HH:mm"))));

    QString rows =
        Row(Cell(tr("Name"), "font-weight:bold") + Cell(tr("Value"), "font-weight:bold;text-align:right") +
            Cell(tr("Unit"), "font-weight:bold"));
    std::wstring side;
    const std::vector<ProbeValue> values = ValuesOf(document.Conversion(probe), platform);
    for (const ProbeValue& value : values) {
        if (value.page != side)
            rows += Row(Cell(ToQt(side = value.page), "font-weight:bold"));
        rows += Row(Cell(ToQt(value.name)) + Cell(ToQt(value.text), "text-align:right") +
                    Cell(ToQt(value.units)));
    }
    page += (values.empty() ? QStringLiteral("<p>") + tr("This conversion has no values.").toHtmlEscaped() +
                                  QStringLiteral("</p>")
                            : Table(rows));
    if (const auto lost = document.CheckRecord(probe).Lines(); !lost.empty()) {
        QStringList keys;
        for (const std::wstring& key : lost)
            keys += ToQt(key).toHtmlEscaped();
        page += QStringLiteral("<p><b>") +
                tr("These keys are missing or cannot be read; they have default values:").toHtmlEscaped() +
                QStringLiteral("</b><br>") + keys.join(QLatin1String("<br>")) + QStringLiteral("</p>");
    }
    const QString rule(36, QLatin1Char('_'));
    return page + Table(line(tr("Compared with certificate no.:"), rule) + line(tr("Date:"), rule) +
                        line(tr("Signature:"), rule));
}

} // namespace ProbeSetup
