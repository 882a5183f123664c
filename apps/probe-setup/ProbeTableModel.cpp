#include "apps/probe-setup/ProbeTableModel.h"

#include "QuorConversions/qt/QtText.h"
#include "apps/probe-setup/TypeTexts.h"

#include <QStringMatcher>
#include <QTextDocument>

#include <algorithm>
#include <unordered_map>

namespace ProbeSetup {

using QuorConversions::QtToolkit::ToQt;

void ProbeTableModel::Refresh() {
    beginResetModel();
    Filter();
    endResetModel();
}

void ProbeTableModel::RefreshProbe(std::size_t probe) {
    if (const auto row = RowOf(probe))
        emit dataChanged(index(*row, 0), index(*row, ColumnCount - 1));
}

void ProbeTableModel::SetFilter(const QString& text) {
    m_filter = text;
    Refresh();
}

void ProbeTableModel::Filter() {
    m_rows.clear();
    m_rows.reserve(m_document.Count());
    const QStringMatcher matcher(m_filter, Qt::CaseInsensitive);
    // Conversions are few and probes are many: each conversion is looked at once.
    std::unordered_map<std::size_t, bool> conversions;
    for (std::size_t probe = 0; probe < m_document.Count(); ++probe) {
        bool shown = m_filter.isEmpty() || matcher.indexIn(ToQt(m_document.Name(probe))) >= 0;
        if (!shown) {
            const std::size_t key =
                m_document.ConversionNumber(probe) * 0x10000 +
                static_cast<std::uint16_t>(m_document.Type(probe).value_or(QuorConversions::CONV_NONE));
            const auto [known, isNew] = conversions.try_emplace(key, false);
            if (isNew)
                known->second = matcher.indexIn(ConversionText(probe)) >= 0;
            shown = known->second;
        }
        if (shown)
            m_rows.push_back(static_cast<std::uint32_t>(probe));
    }
}

std::optional<int> ProbeTableModel::RowOf(std::size_t probe) const {
    const auto row = std::lower_bound(m_rows.begin(), m_rows.end(), probe);
    if (row == m_rows.end() || *row != probe)
        return std::nullopt;
    return static_cast<int>(row - m_rows.begin());
}

int ProbeTableModel::RowFrom(std::size_t probe) const {
    const auto row = std::lower_bound(m_rows.begin(), m_rows.end() - 1, probe);
    return static_cast<int>(row - m_rows.begin());
}

QString ProbeTableModel::ConversionText(std::size_t probe) const {
    return TypeTexts::OfProbe(m_document.Type(probe),
                              ToQt(m_document.ConversionName(m_document.ConversionNumber(probe))));
}

int ProbeTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ProbeTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ProbeTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const std::size_t probe = ProbeAt(index.row());
    switch (index.column()) {
    case NameColumn:
        if (role == Qt::DisplayRole || role == Qt::EditRole)
            return ToQt(m_document.Name(probe));
        if (role == Qt::ToolTipRole) // a name may look like mark-up
            return Qt::convertFromPlainText(ToQt(m_document.Name(probe)));
        break;
    case ConversionColumn:
        if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
            return ConversionText(probe);
        break;
    case ChangedColumn:
        if (role == Qt::TextAlignmentRole)
            return QVariant::fromValue<int>(Qt::AlignCenter);
        if (!m_document.IsChanged(probe))
            break;
        if (role == Qt::DisplayRole)
            return QStringLiteral("\u25CF");
        if (role == Qt::AccessibleTextRole || role == Qt::ToolTipRole)
            return tr("Changed and not saved yet");
        break;
    default:
        break;
    }
    return {};
}

QVariant ProbeTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const QString titles[] = {tr("Name"), tr("Conversion"), tr("Changed")};
    return section >= 0 && section < ColumnCount ? QVariant(titles[section]) : QVariant();
}

Qt::ItemFlags ProbeTableModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    if (index.isValid() && index.column() == NameColumn && !m_document.IsReadOnly())
        flags |= Qt::ItemIsEditable;
    return flags;
}

} // namespace ProbeSetup
