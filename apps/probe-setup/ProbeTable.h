#pragma once

#include <QPersistentModelIndex>
#include <QString>
#include <QTreeView>

#include <functional>
#include <utility>

namespace ProbeSetup {

/// The table of probes, in which names are edited in place. A name that is refused stays in its editor, as it
/// was typed, until it is corrected or the person gives up with Esc.
class ProbeTable final : public QTreeView {
public:
    struct NameEditing {
        /// Gives the probe in a row its name. Returns what is wrong with the name; empty for nothing.
        std::function<QString(int row, const QString& name)> rename;
        /// Shows what is wrong with a name, and returns when the person has seen it.
        std::function<void(const QString& problem)> tell;
        /// Called when an editor has been closed.
        std::function<void()> closed;
    };
    using QTreeView::edit;
    explicit ProbeTable(NameEditing editing) : m_editing(std::move(editing)) {}

    /// Takes the name that is being edited, if any, as Enter does, and closes its editor. False, and the
    /// person has been told, when the name is refused.
    bool FinishEditing();

protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void commitData(QWidget* editor) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    /// The editor that is open; null for none. (One that was closed lives a little longer.)
    [[nodiscard]] QWidget* Editor() const { return indexWidget(m_edited); }
    /// Tells what is wrong with the name, and goes back to its editor.
    void TellProblem();

    NameEditing m_editing;
    QPersistentModelIndex m_edited;
    QString m_problem; // with the name that was committed last
    enum class Telling { None, Soon, Now } m_telling = Telling::None;
};

} // namespace ProbeSetup
