// From Edit to the painted dialog, beside a bare QDialog with the same widgets: what the model, the adapter
// and the loading of the values cost a person who waits for the window. Needs no display
// (QT_QPA_PLATFORM=offscreen).

#include "QuorConversions/core/CQuorConversion.h"
#include "QuorConversions/core/SettingsObject.h"
#include "QuorConversions/qt/QtPlatform.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace QuorConversions;
using Clock = std::chrono::steady_clock;

/// Ends the next dialog when it has been painted, and tells when that was. `look` may look at it before.
class Painted final : public QObject {
public:
    Painted() { qApp->installEventFilter(this); }
    std::function<void(QDialog&)> look;
    Clock::time_point when;

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* const widget =
            event->type() == QEvent::Paint ? qobject_cast<const QWidget*>(watched) : nullptr;
        auto* const dialog = widget ? qobject_cast<QDialog*>(widget->window()) : nullptr;
        if (dialog && dialog != m_ending) {
            m_ending = dialog;
            // What stands in the dialog is painted in the same pass, before the next event.
            QTimer::singleShot(0, dialog, [this, dialog] {
                when = Clock::now();
                if (look)
                    look(*dialog);
                m_ending = nullptr;
                dialog->done(0);
            });
        }
        return false;
    }

private:
    const QDialog* m_ending = nullptr;
};

/// The same widgets again, of the stock classes, in the same layouts.
QWidget* Bare(const QWidget& original, QWidget* parent) {
    QWidget* copy = nullptr;
    if (const auto* const label = qobject_cast<const QLabel*>(&original)) {
        auto* const bare = new QLabel(label->text(), parent);
        bare->setWordWrap(label->wordWrap());
        bare->setSizePolicy(label->sizePolicy());
        copy = bare;
    } else if (const auto* const box = qobject_cast<const QLineEdit*>(&original)) {
        auto* const bare = new QLineEdit(box->text(), parent);
        bare->setAlignment(box->alignment());
        bare->setMinimumWidth(box->minimumWidth());
        copy = bare;
    } else if (const auto* const list = qobject_cast<const QComboBox*>(&original)) {
        auto* const bare = new QComboBox(parent);
        for (int i = 0; i < list->count(); ++i)
            bare->addItem(list->itemText(i));
        bare->setCurrentIndex(list->currentIndex());
        copy = bare;
    } else if (const auto* const button = qobject_cast<const QPushButton*>(&original)) {
        copy = new QPushButton(button->text(), parent);
    } else if (const auto* const tabs = qobject_cast<const QTabBar*>(&original)) {
        auto* const bare = new QTabBar(parent);
        for (int i = 0; i < tabs->count(); ++i)
            bare->addTab(tabs->tabText(i));
        copy = bare;
    } else if (const auto* const group = qobject_cast<const QGroupBox*>(&original)) {
        copy = new QGroupBox(group->title(), parent);
    } else {
        copy = new QWidget(parent);
    }
    if (const auto* const grid = qobject_cast<const QGridLayout*>(original.layout())) {
        auto* const bare = new QGridLayout(copy);
        for (int i = 0; i < grid->count(); ++i) {
            int row = 0;
            int column = 0;
            int rows = 0;
            int columns = 0;
            grid->getItemPosition(i, &row, &column, &rows, &columns);
            bare->addWidget(Bare(*grid->itemAt(i)->widget(), copy), row, column, rows, columns);
        }
    } else if (original.layout()) {
        auto* const bare = new QHBoxLayout(copy);
        for (int i = 0; i < original.layout()->count(); ++i)
            bare->addWidget(Bare(*original.layout()->itemAt(i)->widget(), copy));
    }
    if (original.isHidden() && original.parentWidget()) // the root is no window of its own any more
        copy->hide();
    return copy;
}

double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

double MillisecondsTo(const Painted& painted, Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(painted.when - start).count();
}

} // namespace

int main(int argc, char** argv) {
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 101;
    const QApplication application(argc, argv);
    const auto platform = std::make_shared<QtToolkit::QtPlatform>();
    const struct {
        const char* name;
        EQuorConversionType type;
    } dialogs[] = {{"PT100", CONV_PT100R0},
                   {"CVD", CONV_CVD},
                   {"ITS-90", CONV_ITS90},
                   {"TC Polynomial", CONV_TCPOLYNOMIAL},
                   {"TC Table", CONV_TCTABLE}};
    std::printf("%-14s %12s %12s %6s   (median of %d pairs)\n", "dialog", "Edit ms", "bare ms", "ratio",
                rounds);
    Painted painted;
    bool isFast = true;
    for (const auto& dialog : dialogs) {
        CQuorConversion conversion(platform);
        conversion.SetConversionType(dialog.type);
        // A picture of the widgets, kept aside, from which the bare dialog is made each time.
        std::unique_ptr<QWidget> original;
        painted.look = [&](QDialog& shown) {
            original.reset(Bare(*shown.findChild<QScrollArea*>()->widget(), nullptr));
        };
        conversion.Edit();
        painted.look = nullptr;

        std::vector<double> edit;
        std::vector<double> bare;
        for (int round = 0; round < rounds; ++round) {
            auto start = Clock::now();
            conversion.Edit();
            edit.push_back(MillisecondsTo(painted, start));

            start = Clock::now();
            {
                QDialog window;
                auto* const layout = new QHBoxLayout(&window);
                layout->setContentsMargins({});
                layout->addWidget(Bare(*original, &window));
                window.exec();
            }
            bare.push_back(MillisecondsTo(painted, start));
        }
        const double ratio = Median(edit) / Median(bare);
        isFast = isFast && ratio < 1.3;
        std::printf("%-14s %12.2f %12.2f %6.2f\n", dialog.name, Median(edit), Median(bare), ratio);
    }
    std::printf("target: below 1.3 times the bare dialog: %s\n", isFast ? "met" : "missed");
}
