#include "apps/probe-setup/Wording.h"

#include "QuorConversions/qt/QtText.h"
#include "QuorIniFile/IniCause.h"

#include <QStringList>

#include <algorithm>
#include <cstddef>

namespace ProbeSetup {

using QuorConversions::QtToolkit::FromQt;
using QuorConversions::QtToolkit::ToQt;

QString Wording::Lines(const std::vector<std::wstring>& lines) {
    constexpr std::size_t most = 12;
    QStringList shown;
    for (std::size_t i = 0; i < std::min(lines.size(), most); ++i)
        shown += ToQt(lines[i]);
    if (lines.size() > most)
        shown += QStringLiteral("\u2026");
    return shown.join(QLatin1Char('\n'));
}

QString Wording::Of(const QuorProbeFile::RecordConflict& conflict) {
    const QString key = ToQt(L"[" + conflict.section + L"] " + conflict.key);
    const QString ours = ToQt(QuorProbeFile::ToText(conflict.ours));
    return conflict.theirs ? tr("%1: %2 in the file, %3 here")
                                 .arg(key, ToQt(QuorProbeFile::ToText(*conflict.theirs)), ours)
                           : tr("%1: removed from the file, %2 here").arg(key, ours);
}

QString Wording::Of(const QuorProbeFile::ProbeProblem& problem) {
    const QString text = problem.phrases.empty() ? ToQt(problem.text) : Of(problem.phrases);
    return problem.IsWarning() ? tr("Warning: %1").arg(text) : tr("Error: %1").arg(text);
}

QString Wording::Of(const std::vector<QuorProbeFile::ProbePhrase>& phrases) {
    QString told;
    for (const QuorProbeFile::ProbePhrase& phrase : phrases) {
        const QString text = QCoreApplication::translate("ProbeTexts", EnglishText(phrase.text));
        told += ToQt(QuorIniFile::FillTildes(FromQt(text), phrase.values));
    }
    return told;
}

QString Wording::Of(const DocumentError& error) {
    const QString file = ToQt(error.file);
    const auto detail = [&](std::size_t number) { return ToQt(error.details.at(number)); };
    const auto lines = [&](std::size_t from) {
        return QLatin1Char('\n') +
               Lines({error.details.begin() + static_cast<std::ptrdiff_t>(from), error.details.end()});
    };
    switch (error.failure) {
    case Failure::NoSettingsFile:
        return tr("%1: this is not a settings file. Line %2 is neither a section nor a key, nor any other "
                  "text that can be in one.")
            .arg(file, detail(0));
    case Failure::NoStandAloneFile:
        return tr("%1: this is not a settings file of a conversion.").arg(file);
    case Failure::UnreadableRecord:
        return tr("%1: these keys are missing or cannot be read:").arg(file) + lines(0);
    case Failure::UnknownType:
        return tr("%1: \"%2\" has the type %3, which this program does not know. It stays in the file "
                  "unchanged, but it cannot be copied.")
            .arg(file, detail(0), detail(1));
    case Failure::ChangedByOthers: {
        QStringList parts;
        if (!error.details.empty())
            parts +=
                tr("%1: another program has changed or removed these probes in the meantime:").arg(file) +
                lines(0);
        if (!error.conflicts.empty()) {
            std::vector<std::wstring> keys;
            for (const QuorProbeFile::RecordConflict& conflict : error.conflicts)
                keys.push_back(FromQt(Of(conflict)));
            parts += tr("%1: another program has changed these values in the meantime:").arg(file) +
                     QLatin1Char('\n') + Lines(keys);
        }
        return parts.join(QLatin1Char('\n'));
    }
    case Failure::NameIsTaken:
        return tr("%1: another program has added a section called \"%2\" in the meantime. Give the probe "
                  "another "
                  "name and save again.")
            .arg(file, detail(0));
    case Failure::CannotWrite:
        return tr("%1: the probe \"%2\" cannot be written:").arg(file, detail(0)) +
               (error.phrases.empty() ? lines(1) : QLatin1Char('\n') + Of(error.phrases));
    case Failure::NoProbesInText:
        return tr("It contains no probe: a probe starts with its name in square brackets and has the key "
                  "\"ConversionType\".");
    case Failure::UnreadableText:
        return tr("These keys are missing in it or cannot be read:") + lines(0);
    case Failure::UnreadSections:
        return tr("These sections would be left out, because their names occur twice in it or their headers "
                  "have no \"]\":") +
               lines(0);
    case Failure::SharedSection:
        return tr("%1: the section [%2] belongs to both \"%3\" and \"%4\", so it cannot be removed or "
                  "renamed with only one of them. Undo that change.")
            .arg(file, detail(0), detail(1), detail(2));
    }
    return {};
}

QString Wording::Of(NameProblem problem, const QString& name) {
    switch (problem) {
    case NameProblem::None:
        return {};
    case NameProblem::Empty:
        return tr("A probe needs a name.");
    case NameProblem::CannotBeWritten:
        return tr("No section of a file can be called \"%1\".").arg(name);
    case NameProblem::CannotBeSpelled:
        return tr("The file is in Latin-1, which cannot spell \"%1\".").arg(name);
    case NameProblem::ProbeExists:
        return tr("There is a probe called \"%1\" already.").arg(name);
    case NameProblem::SectionExists:
        return tr("The file has a section of its own called \"%1\".").arg(name);
    case NameProblem::IsSettingsOfProbe:
        return tr("Another probe keeps its settings in the section \"%1\".").arg(name);
    case NameProblem::SettingsSectionExists:
        return tr("The file already has a section for the settings of \"%1\".").arg(name);
    }
    return {};
}

QString Wording::Of(StepKind kind) {
    switch (kind) {
    case StepKind::Add:
        return tr("add");
    case StepKind::Duplicate:
        return tr("duplicate");
    case StepKind::Import:
        return tr("import");
    case StepKind::Remove:
        return tr("remove");
    case StepKind::Rename:
        return tr("rename");
    case StepKind::ChangeType:
        return tr("change of type");
    case StepKind::Edit:
        return tr("edit");
    case StepKind::Paste:
        return tr("paste");
    }
    return {};
}

} // namespace ProbeSetup
