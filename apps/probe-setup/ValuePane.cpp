#include "apps/probe-setup/ValuePane.h"

#include "QuorConversions/qt/QtText.h"
#include "apps/probe-setup/ProbeValues.h"
#include "apps/probe-setup/TypeTexts.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMimeData>
#include <QStyledItemDelegate>
#include <QTreeWidget>

#include <algorithm>
#include <array>
#include <memory>

namespace ProbeSetup {

using QuorConversions::QtToolkit::ToQt;

namespace {

enum Column { NameColumn, ValueColumn, UnitsColumn, ColumnCount };

/// Shows numbers from left to right in every language: "-1.5", not "1.5-".
class NumberDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->direction = Qt::LeftToRight;
    }
};

} // namespace

ValuePane::ValuePane(ProbeDocument& document, QuorConversions::Platform& platform)
    : m_document(document), m_platform(platform), m_list(new QTreeWidget) {
    setObjectName(QStringLiteral("values"));
    setWindowTitle(tr("Values"));
    m_list->setObjectName(QStringLiteral("valueList"));
    m_list->setAccessibleName(tr("Values of the selected probes"));
    m_list->setHeaderLabels({tr("Name"), tr("Value"), tr("Unit")});
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setRootIsDecorated(false);
    m_list->setIndentation(0);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(UnitsColumn, QHeaderView::Stretch);
    m_list->setItemDelegateForColumn(ValueColumn, new NumberDelegate(m_list));
    setWidget(m_list);

    const auto add = [this](const char* name, const QString& text, bool asTable) {
        auto* const action = new QAction(text, m_list);
        action->setObjectName(QString::fromLatin1(name));
        connect(action, &QAction::triggered, this, [this, asTable] { Copy(asTable); });
        m_list->addAction(action);
        return action;
    };
    auto* const table = add("copyTable", tr("Copy as a &table"), true);
    table->setShortcut(QKeySequence::Copy);
    table->setShortcutContext(Qt::WidgetShortcut);
    add("copyText", tr("Copy as te&xt"), false);
    m_list->setContextMenuPolicy(Qt::ActionsContextMenu);

    m_idle.setSingleShot(true);
    m_idle.setInterval(0);
    connect(&m_idle, &QTimer::timeout, this, &ValuePane::Fill);
}

void ValuePane::ShowValues(const std::vector<std::size_t>& probes) {
    std::pair state(m_document.Revision(), probes);
    if (m_shown == state)
        return;
    m_shown = std::move(state);
    m_idle.start();
}

void ValuePane::Fill() {
    m_list->clear();
    const auto& [revision, probes] = *m_shown;
    if (revision != m_document.Revision()) // the places are other ones by now, which ShowValues will tell
        return;
    constexpr std::size_t most = 20;
    for (std::size_t i = 0; i < std::min(probes.size(), most); ++i)
        AddProbe(probes[i], probes.size() > 1);
    if (probes.size() > most)
        m_list->addTopLevelItem(new QTreeWidgetItem({tr("\u2026 and %1 more").arg(probes.size() - most)}));
}

void ValuePane::AddProbe(std::size_t probe, bool withName) {
    const auto heading = [this](const QString& text) {
        auto* const item = new QTreeWidgetItem({text});
        QFont font = m_list->font();
        font.setBold(true);
        item->setFont(NameColumn, font);
        m_list->addTopLevelItem(item);
        item->setFirstColumnSpanned(true);
    };
    if (withName)
        heading(ToQt(m_document.Name(probe)));
    const QString conversion = TypeTexts::OfProbe(
        m_document.Type(probe), ToQt(m_document.ConversionName(m_document.ConversionNumber(probe))));
    m_list->addTopLevelItem(new QTreeWidgetItem({tr("Conversion"), conversion}));
    std::wstring page;
    for (const ProbeValue& value : ValuesOf(m_document.Conversion(probe), m_platform)) {
        if (value.page != page)
            heading(ToQt(page = value.page));
        auto* const item = new QTreeWidgetItem({ToQt(value.name), ToQt(value.text), ToQt(value.units)});
        m_list->addTopLevelItem(item);
    }
    for (const std::wstring& line : m_document.CheckRecord(probe).Lines())
        m_list->addTopLevelItem(new QTreeWidgetItem({tr("Cannot be read:"), ToQt(line)}));
}

void ValuePane::Copy(bool asTable) {
    if (m_idle.isActive()) { // no other probe's values go to the clipboard
        m_idle.stop();
        Fill();
    }
    QString text;
    QString html = QStringLiteral("<table>");
    const bool all = m_list->selectedItems().isEmpty();
    for (int row = 0; row < m_list->topLevelItemCount(); ++row) {
        const QTreeWidgetItem& item = *m_list->topLevelItem(row);
        if (!all && !item.isSelected())
            continue;
        const QString name = item.text(NameColumn);
        const QString value = item.text(ValueColumn);
        const QString units = item.text(UnitsColumn);
        if (asTable)
            text += QStringList{name, value, units}.join(QLatin1Char('\t')) + QLatin1Char('\n');
        else
            text += (value.isEmpty() ? name : name + QStringLiteral(" = ") + value) +
                    (units.isEmpty() ? QString() : QLatin1Char(' ') + units) + QLatin1Char('\n');
        html += QStringLiteral("<tr>");
        for (const QString& cell : {name, value, units})
            html += QStringLiteral("<td>") + cell.toHtmlEscaped() + QStringLiteral("</td>");
        html += QStringLiteral("</tr>");
    }
    auto mime = std::make_unique<QMimeData>();
    mime->setText(text);
    if (asTable)
        mime->setHtml(html + QStringLiteral("</table>"));
    QGuiApplication::clipboard()->setMimeData(mime.release());
}

} // namespace ProbeSetup
