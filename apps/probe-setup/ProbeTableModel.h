#pragma once

#include "apps/probe-setup/ProbeDocument.h"

#include <QAbstractTableModel>
#include <QCollator>
#include <QCoreApplication>

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace ProbeSetup {

/// The probes of a document as rows: name, conversion, changed mark. It can show those alone whose name or
/// conversion contains a text, and sort them. A probe with findings has a mark at its name.
class ProbeTableModel final : public QAbstractTableModel {
    Q_DECLARE_TR_FUNCTIONS(ProbeTableModel)

public:
    enum Column { NameColumn, ConversionColumn, ChangedColumn, ColumnCount };

    /// The document outlives the model.
    explicit ProbeTableModel(const ProbeDocument& document) : m_document(document) {}

    /// Shows the document as it is now. To be called when probes have come or gone.
    void Refresh();
    /// Shows a probe as it is now.
    void RefreshProbe(std::size_t probe);
    /// Shows the probes that contain `text`, in any case of letters; an empty one shows all.
    void SetFilter(const QString& text);

    /// Marks the probes that something is wrong with, and says what in tool tips and to screen readers.
    void SetFindings(const std::vector<ProbeFinding>& findings);

    [[nodiscard]] std::size_t ProbeAt(int row) const { return m_rows[static_cast<std::size_t>(row)]; }
    /// The row of a probe; nothing when the filter hides it.
    [[nodiscard]] std::optional<int> RowOf(std::size_t probe) const;
    /// That row, or that of the next probe of the file that is shown, or of the last one. There must be a
    /// row.
    [[nodiscard]] int RowFrom(std::size_t probe) const;
    [[nodiscard]] QString ConversionText(std::size_t probe) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Sorts by a column, numbers in names by their value; by none (-1) in the order of the file.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    struct Mark {
        bool isError = false;
        QString text; // a line for each finding
    };

    void Filter();
    void Sort();
    /// The same number for probes of the same conversion text.
    [[nodiscard]] std::size_t ConversionKey(std::size_t probe) const;
    /// What the rows are sorted by: made once each, because two of them are compared much sooner than two
    /// texts.
    [[nodiscard]] std::vector<QCollatorSortKey> SortKeys() const;
    [[nodiscard]] QVariant NameData(std::size_t probe, int role) const;

    const ProbeDocument& m_document;
    QString m_filter;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    std::vector<std::uint32_t> m_rows; // the probes that are shown, in the order of the rows
    std::vector<int> m_rowOf;          // of each probe; -1 for one that is hidden
    std::unordered_map<std::size_t, Mark> m_marks;
};

} // namespace ProbeSetup
