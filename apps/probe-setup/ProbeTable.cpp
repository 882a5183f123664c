#include "apps/probe-setup/ProbeTable.h"

#include <QLineEdit>
#include <QTimer>

namespace ProbeSetup {

bool ProbeTable::FinishEditing() {
    QWidget* const editor = Editor();
    if (!editor)
        return true;
    commitData(editor);
    if (m_problem.isEmpty())
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    else
        TellProblem();
    return m_problem.isEmpty();
}

bool ProbeTable::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    const bool isOpen = QTreeView::edit(index, trigger, event);
    if (isOpen)
        m_edited = index;
    return isOpen;
}

void ProbeTable::commitData(QWidget* editor) {
    const auto* const box = qobject_cast<QLineEdit*>(editor);
    if (box && box == Editor())
        m_problem = m_editing.rename(m_edited.row(), box->text());
}

void ProbeTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    if (editor != Editor()) // Enter arrives late, when a command has finished the editing meanwhile
        return;
    const bool isGivenUp = hint == QAbstractItemDelegate::RevertModelCache;
    if (m_problem.isEmpty() || isGivenUp) {
        m_problem.clear();
        QTreeView::closeEditor(editor, hint);
        m_editing.closed();
        return;
    }
    // A person who looks at another window meanwhile, for the right name perhaps, is told later. Nor may a
    // message open while the table is in the middle of a click.
    if (m_telling != Telling::None || !isActiveWindow())
        return;
    m_telling = Telling::Soon;
    QTimer::singleShot(0, this, [this] {
        if (m_telling == Telling::Soon)
            TellProblem();
    });
}

void ProbeTable::TellProblem() {
    m_telling = Telling::Now;
    m_editing.tell(m_problem);
    m_telling = Telling::None;
    if (QWidget* const editor = Editor()) {
        setCurrentIndex(m_edited);
        editor->setFocus();
    }
}

} // namespace ProbeSetup
