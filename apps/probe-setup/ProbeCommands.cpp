#include "apps/probe-setup/ProbeCommands.h"

#include "QuorConversions/qt/QtText.h"
#include "QuorProbeFile/ProbeNames.h"
#include "apps/probe-setup/FileCommands.h"
#include "apps/probe-setup/MessageBox.h"
#include "apps/probe-setup/ProbeClipboard.h"
#include "apps/probe-setup/ProbeDialog.h"
#include "apps/probe-setup/ProbeList.h"
#include "apps/probe-setup/Wording.h"

#include <QLocale>
#include <QMainWindow>
#include <QPushButton>
#include <QStatusBar>
#include <QTreeView>

#include <string>
#include <utility>

namespace ProbeSetup {

using QuorConversions::QtToolkit::FromQt;
using QuorConversions::QtToolkit::ToQt;

namespace {

// How long something stands in the status bar, in milliseconds.
constexpr int aWhile = 5000;
constexpr int longEnoughToAct = 10000;

} // namespace

ProbeCommands::ProbeCommands(QMainWindow& window, ProbeDocument& document, ProbeList& list,
                             FileCommands& files, std::function<void()> help)
    : m_window(window), m_document(document), m_list(list), m_files(files), m_help(std::move(help)) {}

void ProbeCommands::ShowStatus(const QString& text, int milliseconds) {
    m_window.statusBar()->showMessage(text, milliseconds);
}

QString ProbeCommands::NameOf(const std::vector<std::size_t>& probes) const {
    return probes.size() == 1
               ? tr("\"%1\"").arg(ToQt(m_document.Name(probes.front())))
               : tr("%1 probes").arg(QLocale().toString(static_cast<qulonglong>(probes.size())));
}

bool ProbeCommands::HasSettings(std::size_t probe) {
    const bool has = m_document.HasSettings(probe);
    if (!has)
        ShowStatus(tr("\"%1\" has no settings to edit: %2.")
                       .arg(ToQt(m_document.Name(probe)), m_list.ConversionText(probe)),
                   longEnoughToAct);
    return has;
}

void ProbeCommands::Add() {
    ProbeDialog dialog(&m_window, m_document, ToQt(m_document.FreeName(FromQt(tr("New probe")))), m_help);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_list.ShowNew({m_document.Add(FromQt(dialog.Name()), *dialog.ChosenType())});
    m_list.Table().setFocus();
}

std::vector<std::size_t> ProbeCommands::FreshSelection() {
    std::vector<std::size_t> probes = m_list.Selected();
    const std::vector<std::size_t> stale = m_document.StaleAmong(probes);
    if (stale.empty())
        return probes;
    if (m_document.Changed() || m_document.UndoKind() || m_document.RedoKind()) { // a reload would end them
        MessageBox box(&m_window, QMessageBox::Warning,
                       tr("Another program has changed %1 in the file.").arg(NameOf(stale)),
                       tr("Reload the file to see the current values."),
                       QMessageBox::Save | QMessageBox::Cancel);
        box.button(QMessageBox::Save)->setText(tr("&Reload"));
        if (box.exec() == QMessageBox::Save)
            static_cast<void>(m_files.Reload());
        return {};
    }
    QuorProbeFile::NameSet names;
    for (const std::size_t probe : probes)
        names.insert(m_document.Name(probe));
    if (!m_files.Reload())
        return {};
    std::vector<std::size_t> found; // in other places, perhaps, or hidden now
    for (std::size_t probe = 0; probe < m_document.Count(); ++probe) {
        if (names.erase(m_document.Name(probe)) != 0)
            found.push_back(probe);
    }
    if (!found.empty())
        m_list.ShowNew(found);
    if (names.empty())
        return found;
    MessageBox(&m_window, QMessageBox::Warning, tr("Nothing was done. No longer in the file:"),
               Wording::Lines({names.begin(), names.end()}))
        .exec();
    return {};
}

void ProbeCommands::Edit() {
    const std::vector<std::size_t> probes = FreshSelection();
    if (probes.size() != 1)
        return;
    const std::size_t probe = probes.front();
    const ReadProblems& problems = m_document.CheckRecord(probe);
    if (!problems.IsEmpty()) {
        // Where there is no dialog, no values stand in it.
        const QString what = m_document.Type(probe)
                                 ? tr("These keys are missing or cannot be read; they have default values:")
                                 : tr("This key is missing or cannot be read:");
        MessageBox(&m_window, QMessageBox::Warning,
                   tr("The record of \"%1\" in %2 cannot be read completely.")
                       .arg(ToQt(m_document.Name(probe)), ToQt(m_document.Path())),
                   what + QLatin1Char('\n') + Wording::Lines(problems.Lines()))
            .exec();
    }
    if (!HasSettings(probe))
        return;
    if (m_document.Edit(probe))
        m_list.ShowChanged(probe);
}

void ProbeCommands::Export() { m_files.Export(FreshSelection()); }

void ProbeCommands::ChangeType() {
    const std::vector<std::size_t> probes = FreshSelection();
    if (probes.empty())
        return;
    ProbeDialog dialog(&m_window, NameOf(probes), TypeChoice::Of(m_document.Conversion(probes.front())),
                       m_help);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_document.SetType(probes, *dialog.ChosenType());
    for (const std::size_t probe : probes)
        m_list.ShowChanged(probe);
}

void ProbeCommands::Duplicate() {
    const std::vector<std::size_t> probes = FreshSelection();
    std::vector<std::size_t> copies;
    if (!probes.empty() && RunOrTell(&m_window, tr("%1 cannot be duplicated.").arg(NameOf(probes)),
                                     [&] { copies = m_document.Duplicate(probes); }))
        m_list.ShowNew(copies);
}

void ProbeCommands::Remove() {
    const std::vector<std::size_t> probes = m_list.Selected();
    if (probes.empty())
        return;
    m_document.Remove(probes);
    m_list.Show(probes.front());
    ShowStatus(probes.size() == 1 ? tr("One probe is removed. Undo brings it back.")
                                  : tr("%1 are removed. Undo brings them back.").arg(NameOf(probes)),
               aWhile);
}

void ProbeCommands::Copy() {
    const std::vector<std::size_t> probes = FreshSelection();
    if (!probes.empty() && RunOrTell(&m_window, tr("%1 cannot be copied.").arg(NameOf(probes)),
                                     [&] { ProbeClipboard::Copy(m_document, probes); }))
        ShowStatus(tr("%1 on the clipboard, as text.").arg(NameOf(probes)), aWhile);
}

void ProbeCommands::Paste() {
    std::vector<std::size_t> probes;
    if (RunOrTell(&m_window, tr("The text on the clipboard cannot be pasted."),
                  [&] { probes = ProbeClipboard::Paste(m_document); }))
        m_list.ShowNew(probes);
}

void ProbeCommands::Undo() {
    const std::size_t count = m_document.Count();
    ShowStep(m_document.Undo(), count);
    ShowStatus(tr("Taken back: %1").arg(Wording::Of(*m_document.RedoKind())), aWhile);
}

void ProbeCommands::Redo() {
    const std::size_t count = m_document.Count();
    ShowStep(m_document.Redo(), count);
    ShowStatus(tr("Done again: %1").arg(Wording::Of(*m_document.UndoKind())), aWhile);
}

void ProbeCommands::ShowStep(const std::vector<std::size_t>& places, std::size_t count) {
    if (m_document.Count() < count) {
        m_list.Show(places.front()); // probes have gone
    } else if (m_document.Count() > count || !m_list.AreShown(places)) {
        m_list.ShowNew(places);
    } else {
        for (const std::size_t place : places)
            m_list.ShowChanged(place);
        m_list.Select(places);
    }
}

} // namespace ProbeSetup
