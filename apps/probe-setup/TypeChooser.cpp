#include "apps/probe-setup/TypeChooser.h"

#include "QuorConversions/qt/QtText.h"
#include "apps/probe-setup/FindBox.h"
#include "apps/probe-setup/TypeTexts.h"

#include <QComboBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace ProbeSetup {

using namespace QuorConversions;
using QtToolkit::ToQt;

TypeChooser::TypeChooser(const TypeChoice& selected, std::function<void()> changed,
                         std::function<void()> accepted)
    : m_choices(TypeChoice::All()),
      m_filter(new FindBox(tr("Part of a type, such as \"K\" or \"PT100\""))),
      m_list(new QListWidget),
      m_ranges(new QWidget),
      m_low(MakeRanges(IR_LOWRANGE, selected.low)),
      m_high(MakeRanges(IR_HIGHRANGE, selected.high)),
      m_changed(std::move(changed)) {
    m_filter->setObjectName(QStringLiteral("typeFilter"));
    m_filter->installEventFilter(this);
    m_list->setObjectName(QStringLiteral("probeType"));
    m_low->setObjectName(QStringLiteral("lowRange"));
    m_high->setObjectName(QStringLiteral("highRange"));
    TypeChoice wanted = selected;
    wanted.low.reset();
    wanted.high.reset();
    for (const TypeChoice& choice : m_choices) {
        auto* const item = new QListWidgetItem(TypeTexts::OfChoice(choice), m_list);
        if (choice == wanted)
            m_list->setCurrentItem(item);
    }
    m_list->setMinimumHeight(m_list->sizeHintForRow(0) * 2);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto addLabelled = [layout](const QString& text, QWidget* widget, int stretch) {
        auto* const label = new QLabel(text);
        label->setBuddy(widget);
        layout->addWidget(label);
        layout->addWidget(widget, stretch);
    };
    addLabelled(tr("&Filter:"), m_filter, 0);
    addLabelled(tr("Conversion &type:"), m_list, 1);
    auto* const ranges = new QFormLayout(m_ranges);
    ranges->setContentsMargins(0, 0, 0, 0);
    ranges->addRow(tr("&Low range:"), m_low);
    ranges->addRow(tr("&High range:"), m_high);
    layout->addWidget(m_ranges);
    ShowRanges();
    connect(m_filter, &QLineEdit::textChanged, this, &TypeChooser::Filter);
    connect(m_list, &QListWidget::itemSelectionChanged, this, [this] {
        ShowRanges();
        m_changed();
    });
    connect(m_list, &QListWidget::itemDoubleClicked, this, std::move(accepted));
}

QComboBox* TypeChooser::MakeRanges(EITS90RangeHL side, std::optional<EITS90RangeNumber> selected) {
    auto* const box = new QComboBox;
    for (const RangeChoice& range : RangeChoices(side)) {
        box->addItem(ToQt(range.name), static_cast<int>(range.range));
        if (selected == range.range)
            box->setCurrentIndex(box->count() - 1);
    }
    return box;
}

void TypeChooser::Filter(const QString& text) {
    QListWidgetItem* first = nullptr;
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem* const item = m_list->item(row);
        item->setHidden(!item->text().contains(text, Qt::CaseInsensitive));
        first = first || item->isHidden() ? first : item;
    }
    if (!m_list->currentItem() || m_list->currentItem()->isHidden())
        m_list->setCurrentItem(first);
}

void TypeChooser::ShowRanges() {
    const auto chosen = Chosen();
    m_ranges->setEnabled(chosen && chosen->type == CONV_ITS90);
}

std::optional<TypeChoice> TypeChooser::Chosen() const {
    const QListWidgetItem* const item = m_list->currentItem();
    // A list that gets the keyboard makes its first item the current one, without selecting it.
    if (!item || item->isHidden() || !item->isSelected())
        return std::nullopt;
    TypeChoice choice = m_choices[static_cast<std::size_t>(m_list->row(item))];
    if (choice.type == CONV_ITS90) {
        choice.low = EITS90RangeNumber{m_low->currentData().toInt()};
        choice.high = EITS90RangeNumber{m_high->currentData().toInt()};
    }
    return choice;
}

void TypeChooser::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (m_list->currentItem()) // its place is known when the list has its size
        m_list->scrollToItem(m_list->currentItem(), QAbstractItemView::PositionAtCenter);
}

bool TypeChooser::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_filter && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_PageDown || key == Qt::Key_PageUp) {
            QCoreApplication::sendEvent(m_list, event);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace ProbeSetup
