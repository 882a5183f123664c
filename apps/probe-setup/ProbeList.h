#pragma once

#include "apps/probe-setup/ProbeDocument.h"
#include "apps/probe-setup/ProbeTableModel.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QWidget>

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

class QAction;
class QLabel;
class QLineEdit;
class QTreeView;

namespace ProbeSetup {

class ProbeTable;

/// The probes of a document, in a table with a find box above it. Probes are meant by their places in the
/// document; those that the text of the find box hides have no row.
class ProbeList final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(ProbeList)

public:
    /// The document outlives the list. `changed` is called when the selection, the find box or a name has
    /// changed, and when a name is edited no longer. Nothing is shown before the first call of Show.
    ProbeList(ProbeDocument& document, std::function<void()> changed);
    ProbeList(const ProbeList&) = delete;
    ProbeList& operator=(const ProbeList&) = delete;
    ~ProbeList() override;

    [[nodiscard]] QTreeView& Table();
    [[nodiscard]] std::optional<std::size_t> Current() const;
    /// In ascending order.
    [[nodiscard]] std::vector<std::size_t> Selected() const;
    [[nodiscard]] int RowCount() const { return m_model.rowCount(); }
    [[nodiscard]] bool IsShown(std::size_t probe) const { return m_model.RowOf(probe).has_value(); }
    [[nodiscard]] bool AreShown(const std::vector<std::size_t>& probes) const;
    /// As it stands in the table.
    [[nodiscard]] QString ConversionText(std::size_t probe) const { return m_model.ConversionText(probe); }

    /// Shows the list as it is now, with the probe in the place `current`, or the next one that is shown, as
    /// the current one.
    void Show(std::optional<std::size_t> current);
    /// Shows the list with probes that have come, and selects them. The find box is cleared when it would
    /// hide one of them.
    void ShowNew(const std::vector<std::size_t>& probes);
    /// Shows a probe whose name, conversion or mark has changed. The list stays where it is.
    void ShowChanged(std::size_t probe);
    /// Selects probes, which all have a row, and makes the first of them the current one.
    void Select(const std::vector<std::size_t>& probes);

    /// Sorts by a column of the table; the second time in a row, the other way round. By none (-1) in the
    /// order of the file.
    void SortBy(int column);
    /// The column that it is sorted by; -1 for none.
    [[nodiscard]] int SortColumn() const;

    /// Gives names that are cut the room that conversions leave empty, and no more.
    void FitNames();

    /// Opens an editor for the name of the probe that is selected.
    void EditName();
    /// Ends the editing of a name as Enter does. False when the name is refused; the person has been told.
    bool FinishEditing();

    /// Shows the marks of probes that something is wrong with.
    void SetFindings(const std::vector<ProbeFinding>& findings) { m_model.SetFindings(findings); }
    /// Shows a probe, and clears the find box when that hides it.
    void GoTo(std::size_t probe);

    void GoToFindBox();
    void ClearFindBox();
    [[nodiscard]] QString FindText() const;
    /// What stands in the place of the table's rows; nothing when it is empty.
    void SetEmptyText(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeTable();
    /// Returns what is wrong with the name; empty for nothing.
    QString Rename(std::size_t probe, const QString& typed);

    ProbeDocument& m_document;
    std::function<void()> m_changed;
    ProbeTableModel m_model;
    ProbeTable* m_table;
    QLabel* m_emptyText;
    QLineEdit* m_find;
    int m_nameWidth = 0; // of the names' column, where there is no more room
};

} // namespace ProbeSetup
