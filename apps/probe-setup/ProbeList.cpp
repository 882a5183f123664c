#include "apps/probe-setup/ProbeList.h"

#include "QuorConversions/qt/QtText.h"
#include "apps/probe-setup/FindBox.h"
#include "apps/probe-setup/MessageBox.h"
#include "apps/probe-setup/ProbeTable.h"
#include "apps/probe-setup/TypeChoice.h"
#include "apps/probe-setup/TypeTexts.h"
#include "apps/probe-setup/Wording.h"

#include <QHeaderView>
#include <QItemSelection>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace ProbeSetup {

using QuorConversions::QtToolkit::FromQt;
using QuorConversions::QtToolkit::ToQt;

ProbeList::ProbeList(ProbeDocument& document, std::function<void()> changed)
    : m_document(document),
      m_changed(std::move(changed)),
      m_model(document),
      m_table(new ProbeTable(
          {[this](int row, const QString& name) { return Rename(m_model.ProbeAt(row), name); },
           [this](const QString& problem) { MessageBox(window(), QMessageBox::Warning, problem).exec(); },
           [this] { m_changed(); }})),
      m_emptyText(new QLabel(m_table->viewport())),
      m_find(new FindBox(tr("Part of a name or of a conversion"))) {
    auto* const findLabel = new QLabel(tr("F&ind:"));
    findLabel->setBuddy(m_find);
    m_find->setObjectName(QStringLiteral("find"));
    m_find->setAccessibleName(tr("Find probes"));
    m_find->installEventFilter(this);
    auto* const findRow = new QHBoxLayout;
    findRow->addWidget(findLabel);
    findRow->addWidget(m_find);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(findRow);
    layout->addWidget(m_table);
    MakeTable();
    connect(m_find, &QLineEdit::textChanged, this, [this](const QString& text) {
        const auto current = Current();
        m_model.SetFilter(text);
        if (current && IsShown(*current))
            Select({*current});
        else if (RowCount() > 0)
            Select({m_model.ProbeAt(0)});
        m_changed();
    });
}

ProbeList::~ProbeList() { m_table->setModel(nullptr); }

void ProbeList::MakeTable() {
    m_table->setObjectName(QStringLiteral("probes"));
    m_table->setAccessibleName(tr("Probes"));
    m_table->setModel(&m_model);
    m_table->setRootIsDecorated(false);
    m_table->setUniformRowHeights(true);
    m_table->setAllColumnsShowFocus(true);
    m_table->setAlternatingRowColors(true);
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_table->viewport()->installEventFilter(this); // its width changes with a scroll bar, too
    m_table->header()->setStretchLastSection(false);
    m_table->header()->setSortIndicatorClearable(true);
    m_table->header()->setSortIndicator(-1, Qt::AscendingOrder);
    m_table->setSortingEnabled(true);
    m_table->header()->setSectionResizeMode(ProbeTableModel::ChangedColumn, QHeaderView::ResizeToContents);
    const int screenWidth = screen()->availableSize().width();
    m_nameWidth = std::min(fontMetrics().averageCharWidth() * 30, screenWidth / 6);
    m_table->header()->resizeSection(ProbeTableModel::NameColumn, m_nameWidth);
    // Names of conversions are not cut where the screen has room for them: the panes give way.
    int conversionWidth = 0;
    for (const TypeChoice& type : TypeChoice::All())
        conversionWidth =
            std::max(conversionWidth, fontMetrics().horizontalAdvance(TypeTexts::OfConversion(type)));
    const int margins = m_table->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) * 2 + 4;
    const int rest = m_table->header()->sectionSizeHint(ProbeTableModel::ChangedColumn) +
                     m_table->style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2 * m_table->frameWidth();
    // On a narrow screen a name that is cut has a tool tip, but the values beside the list must not be cut.
    const int panes = fontMetrics().averageCharWidth() * 64;
    m_table->setMinimumWidth(std::min(m_nameWidth + conversionWidth + margins + rest,
                                      std::max(screenWidth - panes, screenWidth / 2)));
    m_table->header()->setSectionResizeMode(ProbeTableModel::ConversionColumn, QHeaderView::Stretch);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { m_changed(); });
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { m_changed(); });

    m_emptyText->setObjectName(QStringLiteral("emptyState"));
    m_emptyText->setAlignment(Qt::AlignCenter);
    m_emptyText->setWordWrap(true);
    m_emptyText->setTextFormat(Qt::PlainText);
    m_emptyText->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_emptyText->setContentsMargins(24, 24, 24, 24);
    auto* const overlay = new QVBoxLayout(m_table->viewport());
    overlay->setContentsMargins(0, 0, 0, 0);
    overlay->addWidget(m_emptyText);
}

QTreeView& ProbeList::Table() { return *m_table; }

void ProbeList::FitNames() {
    const QAbstractItemView& view = *m_table;
    QHeaderView& header = *m_table->header();
    const int width = header.sectionSize(ProbeTableModel::NameColumn);
    const int room = view.viewport()->width() - header.sectionSize(ProbeTableModel::ChangedColumn) -
                     view.sizeHintForColumn(ProbeTableModel::ConversionColumn);
    const int wanted = view.sizeHintForColumn(ProbeTableModel::NameColumn);
    header.resizeSection(ProbeTableModel::NameColumn, room > width
                                                          ? std::max(width, std::min(wanted, room))
                                                          : std::max(room, std::min(width, m_nameWidth)));
}

std::optional<std::size_t> ProbeList::Current() const {
    const QModelIndex index = m_table->currentIndex();
    return index.isValid() ? std::optional(m_model.ProbeAt(index.row())) : std::nullopt;
}

std::vector<std::size_t> ProbeList::Selected() const {
    std::vector<std::size_t> probes;
    for (const QItemSelectionRange& range : m_table->selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            probes.push_back(m_model.ProbeAt(row));
    }
    std::sort(probes.begin(), probes.end());
    probes.erase(std::unique(probes.begin(), probes.end()), probes.end());
    return probes;
}

void ProbeList::Show(std::optional<std::size_t> current) {
    m_model.Refresh();
    if (current && RowCount() > 0)
        Select({m_model.ProbeAt(m_model.RowFrom(*current))});
    m_changed();
}

bool ProbeList::AreShown(const std::vector<std::size_t>& probes) const {
    return std::all_of(probes.begin(), probes.end(), [this](std::size_t probe) { return IsShown(probe); });
}

void ProbeList::ShowNew(const std::vector<std::size_t>& probes) {
    m_model.Refresh();
    if (!AreShown(probes))
        ClearFindBox();
    Select(probes);
    m_changed();
}

void ProbeList::ShowChanged(std::size_t probe) {
    m_model.RefreshProbe(probe);
    m_changed();
}

void ProbeList::Select(const std::vector<std::size_t>& probes) {
    const auto cell = [this](std::size_t probe) {
        return m_model.index(m_model.RowOf(probe).value(), ProbeTableModel::NameColumn);
    };
    QItemSelection selection;
    for (auto from = probes.begin(); from != probes.end();) {
        auto to = from; // neighbours become one range: there may be very many
        while (to + 1 != probes.end() && cell(*(to + 1)).row() == cell(*to).row() + 1)
            ++to;
        selection.select(cell(*from), cell(*to));
        from = to + 1;
    }
    const QModelIndex first = cell(probes.front());
    m_table->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    m_table->selectionModel()->select(selection,
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_table->scrollTo(first);
}

void ProbeList::SortBy(int column) {
    const QHeaderView& header = *m_table->header();
    const bool isUp =
        header.sortIndicatorSection() == column && header.sortIndicatorOrder() == Qt::AscendingOrder;
    m_table->header()->setSortIndicator(column,
                                        isUp && column >= 0 ? Qt::DescendingOrder : Qt::AscendingOrder);
}

int ProbeList::SortColumn() const { return m_table->header()->sortIndicatorSection(); }

void ProbeList::EditName() {
    const std::vector<std::size_t> probes = Selected();
    if (probes.size() != 1)
        return;
    Select(probes); // another row is the current one after a click that took it out of the selection
    m_table->edit(m_table->currentIndex().siblingAtColumn(ProbeTableModel::NameColumn));
}

bool ProbeList::FinishEditing() { return m_table->FinishEditing(); }

QString ProbeList::Rename(std::size_t probe, const QString& typed) {
    const QString name = typed.trimmed();
    if (name == ToQt(m_document.Name(probe)))
        return {};
    const NameProblem problem = m_document.CheckName(FromQt(name), probe);
    if (problem == NameProblem::None) {
        m_document.Rename(probe, FromQt(name));
        ShowChanged(probe);
    }
    return Wording::Of(problem, name);
}

void ProbeList::GoTo(std::size_t probe) {
    if (!IsShown(probe))
        ClearFindBox();
    Select({probe});
    m_table->setFocus();
}

void ProbeList::GoToFindBox() {
    m_find->setFocus();
    m_find->selectAll();
}

void ProbeList::ClearFindBox() { m_find->clear(); }

QString ProbeList::FindText() const { return m_find->text(); }

void ProbeList::SetEmptyText(const QString& text) {
    m_emptyText->setText(text);
    m_emptyText->setVisible(!text.isEmpty());
    m_table->setAccessibleDescription(text);
}

bool ProbeList::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_table->viewport() && event->type() == QEvent::Resize)
        FitNames();
    if (watched == m_find && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape)
            m_find->clear();
        if (key == Qt::Key_Escape || key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter) {
            m_table->setFocus();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace ProbeSetup
