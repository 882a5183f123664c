#pragma once

#include <QLineEdit>

namespace ProbeSetup {

/// A box for a text to find, whose placeholder can be read in every palette: Qt's own is all but invisible in
/// dark ones.
class FindBox final : public QLineEdit {
public:
    explicit FindBox(const QString& placeholder);

protected:
    void changeEvent(QEvent* event) override;

private:
    void ColourPlaceholder();
};

} // namespace ProbeSetup
