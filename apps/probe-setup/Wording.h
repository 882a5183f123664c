#pragma once

#include "apps/probe-setup/ProbeDocument.h"

#include <QCoreApplication>
#include <QString>

#include <string>
#include <vector>

namespace ProbeSetup {

/// What the window says to a person about problems and steps that the document knows by codes alone.
class Wording {
    Q_DECLARE_TR_FUNCTIONS(Wording)

public:
    /// Why the document could not do something.
    [[nodiscard]] static QString Of(const DocumentError& error);
    /// A key that another program has changed, with both values.
    [[nodiscard]] static QString Of(const QuorProbeFile::RecordConflict& conflict);
    /// What is wrong, with the word "warning" before a warning.
    [[nodiscard]] static QString Of(const QuorProbeFile::ProbeProblem& problem);
    /// Phrases of QuorProbeFile in the user's language, one right after the other.
    [[nodiscard]] static QString Of(const std::vector<QuorProbeFile::ProbePhrase>& phrases);
    /// Why a probe cannot be called `name`; empty for no problem.
    [[nodiscard]] static QString Of(NameProblem problem, const QString& name);
    /// What Undo takes back.
    [[nodiscard]] static QString Of(StepKind kind);

    /// A text that has a line for each of `lines`; of many it has the first.
    [[nodiscard]] static QString Lines(const std::vector<std::wstring>& lines);
};

} // namespace ProbeSetup
