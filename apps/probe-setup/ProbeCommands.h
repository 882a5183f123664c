#pragma once

#include "apps/probe-setup/ProbeDocument.h"

#include <QCoreApplication>
#include <QString>

#include <cstddef>
#include <functional>
#include <vector>

class QMainWindow;

namespace ProbeSetup {

class FileCommands;
class ProbeList;

/// What a person does with the probes of the list: adds, edits, copies and removes them, and takes it back.
/// It tells failures in messages, and shows in the list what has come of it.
class ProbeCommands {
    Q_DECLARE_TR_FUNCTIONS(ProbeCommands)

public:
    /// All of it outlives the commands. `help` shows the topic about conversion types.
    ProbeCommands(QMainWindow& window, ProbeDocument& document, ProbeList& list, FileCommands& files,
                  std::function<void()> help);

    /// The selected probes, before their values are shown or copied: what another program has written about
    /// them is taken in. Empty when the person has to see to it first, because a reload would lose changes or
    /// the history, and when one of them is gone, which is told.
    [[nodiscard]] std::vector<std::size_t> FreshSelection();

    void Add();
    void Edit();
    void Export();
    void ChangeType();
    void Duplicate();
    void Remove();
    void Copy();
    void Paste();
    void Undo();
    void Redo();

private:
    /// Tells the user when a probe has none.
    [[nodiscard]] bool HasSettings(std::size_t probe);
    /// Shows the list after a step was taken back or done again. There were `count` probes before.
    void ShowStep(const std::vector<std::size_t>& places, std::size_t count);
    /// Probes for a message: the name of one, the number of several.
    [[nodiscard]] QString NameOf(const std::vector<std::size_t>& probes) const;
    void ShowStatus(const QString& text, int milliseconds);

    QMainWindow& m_window;
    ProbeDocument& m_document;
    ProbeList& m_list;
    FileCommands& m_files;
    std::function<void()> m_help;
};

} // namespace ProbeSetup
