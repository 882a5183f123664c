#pragma once

#include "QuorConversions/core/EQuorConversionType.h"
#include "apps/probe-setup/ProbeDocument.h"

#include <QCoreApplication>
#include <QDialog>

#include <functional>
#include <optional>

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QListWidget;

namespace ProbeSetup {

/// Asks for the type of a probe, and for the name of a new one.
class ProbeDialog final : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(ProbeDialog)

public:
    /// Asks for the type alone; `type` is the present one.
    ProbeDialog(QWidget* parent, const QString& probe, ProbeType type, std::function<void()> help);
    /// Asks for name and type of a new probe of `document`, which outlives the dialog.
    ProbeDialog(QWidget* parent, const ProbeDocument& document, const QString& name,
                std::function<void()> help);

    [[nodiscard]] QString Name() const;
    /// Nothing for a person who keeps the existing type.
    [[nodiscard]] std::optional<QuorConversions::EQuorConversionType> ChosenType() const;

private:
    void Build(const QString& hint, std::function<void()> help);
    void AddTypes(bool withKeep, ProbeType selected);
    void CheckName();

    const ProbeDocument* m_document = nullptr;
    QLineEdit* m_name = nullptr;
    QLabel* m_problem = nullptr;
    QListWidget* m_types;
    QDialogButtonBox* m_buttons;
};

} // namespace ProbeSetup
