#include "apps/probe-setup/ProbeTableModel.h"

#include "QuorConversions/qt/QtText.h"
#include "apps/probe-setup/TypeTexts.h"
#include "apps/probe-setup/Wording.h"

#include <QApplication>
#include <QCollator>
#include <QLocale>
#include <QStringMatcher>
#include <QStyle>
#include <QTextDocument>

#include <algorithm>
#include <numeric>
#include <unordered_map>
#include <utility>

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
            const auto [known, isNew] = conversions.try_emplace(ConversionKey(probe), false);
            if (isNew)
                known->second = matcher.indexIn(ConversionText(probe)) >= 0;
            shown = known->second;
        }
        if (shown)
            m_rows.push_back(static_cast<std::uint32_t>(probe));
    }
    Sort();
}

std::size_t ProbeTableModel::ConversionKey(std::size_t probe) const {
    return m_document.ConversionNumber(probe) * 0x10000 +
           static_cast<std::uint16_t>(m_document.Type(probe).value_or(QuorConversions::CONV_NONE));
}

void ProbeTableModel::Sort() {
    if (m_sortColumn >= 0) {
        const std::vector<QCollatorSortKey> keys = SortKeys();
        std::vector<std::uint32_t> order(m_rows.size());
        std::iota(order.begin(), order.end(), 0);
        std::stable_sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
            return m_sortOrder == Qt::AscendingOrder ? keys[a] < keys[b] : keys[b] < keys[a];
        });
        for (std::uint32_t& row : order)
            row = m_rows[row];
        m_rows = std::move(order);
    }
    m_rowOf.assign(m_document.Count(), -1);
    for (std::size_t row = 0; row < m_rows.size(); ++row)
        m_rowOf[m_rows[row]] = static_cast<int>(row);
}

std::vector<QCollatorSortKey> ProbeTableModel::SortKeys() const {
    // Numbers by their value: "Probe 10" stands behind "Probe 9".
    const QLocale user;
    QCollator collator(user.language() == QLocale::C ? QLocale(QLocale::English) : user);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<QCollatorSortKey> keys;
    keys.reserve(m_rows.size());
    std::unordered_map<std::size_t, QCollatorSortKey> known; // of texts that many probes have
    for (const std::uint32_t probe : m_rows) {
        if (m_sortColumn == NameColumn) {
            keys.push_back(collator.sortKey(ToQt(m_document.Name(probe))));
            continue;
        }
        const bool byConversion = m_sortColumn == ConversionColumn;
        const std::size_t text = byConversion ? ConversionKey(probe) : m_document.IsChanged(probe) ? 0 : 1;
        auto found = known.find(text);
        if (found == known.end())
            found = known
                        .emplace(text, collator.sortKey(byConversion ? ConversionText(probe)
                                                                     : QString::number(text)))
                        .first;
        keys.push_back(found->second);
    }
    return keys;
}

void ProbeTableModel::sort(int column, Qt::SortOrder order) {
    m_sortColumn = column;
    m_sortOrder = order;
    emit layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    std::vector<std::size_t> probes;
    for (const QModelIndex& index : before)
        probes.push_back(ProbeAt(index.row()));
    Filter();
    QModelIndexList after;
    for (qsizetype i = 0; i < before.size(); ++i)
        after += index(m_rowOf[probes[static_cast<std::size_t>(i)]], before[i].column());
    changePersistentIndexList(before, after);
    emit layoutChanged();
}

void ProbeTableModel::SetFindings(const std::vector<ProbeFinding>& findings) {
    if (findings.empty() && m_marks.empty())
        return;
    m_marks.clear();
    for (const ProbeFinding& finding : findings) {
        if (!finding.probe)
            continue;
        Mark& mark = m_marks[*finding.probe];
        mark.isError = mark.isError || !finding.problem.IsWarning();
        const QString key = ToQt(finding.problem.key);
        mark.text += (mark.text.isEmpty() ? QString() : QStringLiteral("\n")) +
                     (key.isEmpty() ? QString() : key + QStringLiteral(": ")) + Wording::Of(finding.problem);
    }
    if (!m_rows.empty())
        emit dataChanged(index(0, NameColumn), index(rowCount() - 1, NameColumn));
}

std::optional<int> ProbeTableModel::RowOf(std::size_t probe) const {
    if (probe >= m_rowOf.size() || m_rowOf[probe] < 0)
        return std::nullopt;
    return m_rowOf[probe];
}

int ProbeTableModel::RowFrom(std::size_t probe) const {
    for (std::size_t next = probe; next < m_rowOf.size(); ++next) {
        if (m_rowOf[next] >= 0)
            return m_rowOf[next];
    }
    const auto last = std::find_if(m_rowOf.rbegin(), m_rowOf.rend(), [](int row) { return row >= 0; });
    return *last;
}

QVariant ProbeTableModel::NameData(std::size_t probe, int role) const {
    const QString name = ToQt(m_document.Name(probe));
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return name;
    const auto mark = m_marks.find(probe);
    const bool isMarked = mark != m_marks.end();
    if (role == Qt::ToolTipRole) // a name may look like mark-up
        return Qt::convertFromPlainText(isMarked ? name + QLatin1Char('\n') + mark->second.text : name);
    if (!isMarked)
        return {};
    if (role == Qt::AccessibleTextRole)
        return QString(name + QStringLiteral(", ") + mark->second.text);
    if (role == Qt::AccessibleDescriptionRole)
        return mark->second.text;
    if (role == Qt::DecorationRole)
        return QApplication::style()->standardIcon(mark->second.isError ? QStyle::SP_MessageBoxCritical
                                                                        : QStyle::SP_MessageBoxWarning);
    return {};
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
        return NameData(probe, role);
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
