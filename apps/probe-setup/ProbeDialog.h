#pragma once

#include "apps/probe-setup/ProbeDocument.h"
#include "apps/probe-setup/TypeChoice.h"

#include <QCoreApplication>
#include <QDialog>

#include <functional>
#include <optional>

class QDialogButtonBox;
class QLabel;
class QLineEdit;

namespace ProbeSetup {

class TypeChooser;

/// Asks for the type of a probe, and for the name of a new one.
class ProbeDialog final : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(ProbeDialog)

public:
    /// Asks for the type of `probes` alone, a text for the title; `type` is the present one.
    ProbeDialog(QWidget* parent, const QString& probes, const TypeChoice& type, std::function<void()> help);
    /// Asks for name and type of a new probe of `document`, which outlives the dialog.
    ProbeDialog(QWidget* parent, const ProbeDocument& document, const QString& name,
                std::function<void()> help);

    [[nodiscard]] QString Name() const;
    [[nodiscard]] std::optional<TypeChoice> ChosenType() const;

private:
    void Build(const TypeChoice& selected, const QString& hint, std::function<void()> help);
    /// Shows what is wrong with the name, and lets the person accept when all is chosen.
    void CheckInput();

    const ProbeDocument* m_document = nullptr;
    QLineEdit* m_name = nullptr;
    QLabel* m_problem = nullptr;
    TypeChooser* m_types = nullptr;
    QDialogButtonBox* m_buttons;
};

} // namespace ProbeSetup
