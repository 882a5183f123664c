#pragma once

#include "apps/probe-setup/TypeChoice.h"

#include <QCoreApplication>
#include <QString>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QComboBox;
class QLineEdit;
class QListWidget;

namespace ProbeSetup {

/// A list of all that a probe can be, each form and thermocouple letter by itself, with a line that filters
/// it, and the ranges of the ITS-90 below it.
class TypeChooser final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(TypeChooser)

public:
    /// `selected` is chosen at first; a type that is no choice, as one of another program, leaves nothing
    /// chosen. `changed` is called when something else is, `accepted` on a double click.
    TypeChooser(const TypeChoice& selected, std::function<void()> changed, std::function<void()> accepted);

    /// Nothing when the filter hides all, or nothing is chosen.
    [[nodiscard]] std::optional<TypeChoice> Chosen() const;
    [[nodiscard]] QListWidget& List() const { return *m_list; }

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Filter(const QString& text);
    void ShowRanges();
    [[nodiscard]] static QComboBox* MakeRanges(QuorConversions::EITS90RangeHL side,
                                               std::optional<QuorConversions::EITS90RangeNumber> selected);

    std::vector<TypeChoice> m_choices;
    QLineEdit* m_filter;
    QListWidget* m_list;
    QWidget* m_ranges;
    QComboBox* m_low;
    QComboBox* m_high;
    std::function<void()> m_changed;
};

} // namespace ProbeSetup
