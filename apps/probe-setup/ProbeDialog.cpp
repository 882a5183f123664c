#include "apps/probe-setup/ProbeDialog.h"

#include "QuorConversions/core/modStrings.h"
#include "QuorConversions/qt/QtText.h"
#include "QuorProbeFile/ProbeTypes.h"
#include "apps/probe-setup/TypeTexts.h"
#include "apps/probe-setup/Wording.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace ProbeSetup {

using namespace QuorConversions;
using QtToolkit::FromQt;
using QtToolkit::ToQt;

ProbeDialog::ProbeDialog(QWidget* parent, const QString& probe, ProbeType type, std::function<void()> help)
    : QDialog(parent), m_types(new QListWidget), m_buttons(new QDialogButtonBox) {
    setWindowTitle(tr("Conversion type of %1").arg(probe));
    AddTypes(true, type);
    Build(tr("Another type starts with values of its own; the present ones are not carried over."),
          std::move(help));
    m_types->setFocus();
}

ProbeDialog::ProbeDialog(QWidget* parent, const ProbeDocument& document, const QString& name,
                         std::function<void()> help)
    : QDialog(parent),
      m_document(&document),
      m_name(new QLineEdit(name)),
      m_problem(new QLabel),
      m_types(new QListWidget),
      m_buttons(new QDialogButtonBox) {
    setWindowTitle(tr("Add a probe"));
    m_name->setObjectName(QStringLiteral("probeName"));
    m_problem->setObjectName(QStringLiteral("nameProblem"));
    m_problem->setTextFormat(Qt::PlainText); // a name may look like mark-up
    m_problem->setWordWrap(true);
    AddTypes(false, CONV_ITS90);
    Build(tr("The probe gets the default values of its type."), std::move(help));
    m_name->setFocus();
    m_name->selectAll();
    connect(m_name, &QLineEdit::textChanged, this, [this] { CheckName(); });
    CheckName();
}

void ProbeDialog::AddTypes(bool withKeep, ProbeType selected) {
    for (const QuorProbeFile::TypeInfo& type : QuorProbeFile::Types()) {
        if (type.code == CONV_NONE && !withKeep)
            continue;
        auto* const item = new QListWidgetItem(TypeTexts::OfChoice(type.code), m_types);
        item->setData(Qt::UserRole, static_cast<int>(type.code));
        if (selected == type.code || m_types->count() == 1)
            m_types->setCurrentItem(item);
    }
}

void ProbeDialog::Build(const QString& hint, std::function<void()> help) {
    setObjectName(QStringLiteral("probeDialog"));
    m_types->setObjectName(QStringLiteral("probeType"));
    m_types->setMinimumHeight(m_types->sizeHintForRow(0) * 12);
    auto* const layout = new QVBoxLayout(this);
    if (m_name) {
        auto* const label = new QLabel(tr("&Name:"));
        label->setBuddy(m_name);
        layout->addWidget(label);
        layout->addWidget(m_name);
        layout->addWidget(m_problem);
    }
    auto* const label = new QLabel(tr("Conversion &type:"));
    label->setBuddy(m_types);
    layout->addWidget(label);
    layout->addWidget(m_types, 1);
    auto* const note = new QLabel(hint);
    note->setWordWrap(true);
    layout->addWidget(note);
    m_buttons->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help);
    // In the words of the conversions' dialogs; Qt's own are in English where its translations are not
    // installed.
    m_buttons->button(QDialogButtonBox::Ok)->setText(ToQt(TableText(IDS_OK_BUTTON)));
    m_buttons->button(QDialogButtonBox::Cancel)->setText(ToQt(TableText(IDS_CANCEL_BUTTON)));
    m_buttons->button(QDialogButtonBox::Help)->setText(ToQt(TableText(IDS_HELP_BUTTON)));
    layout->addWidget(m_buttons);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_buttons, &QDialogButtonBox::helpRequested, this, std::move(help));
    connect(m_types, &QListWidget::itemDoubleClicked, this, [this] {
        if (m_buttons->button(QDialogButtonBox::Ok)->isEnabled())
            accept();
    });
    resize(sizeHint().expandedTo({fontMetrics().averageCharWidth() * 60, 0}));
}

void ProbeDialog::CheckName() {
    const QString name = Name();
    const QString problem = Wording::Of(m_document->CheckName(FromQt(name)), name);
    m_problem->setText(problem);
    m_problem->setVisible(!problem.isEmpty());
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(problem.isEmpty());
}

QString ProbeDialog::Name() const { return m_name->text().trimmed(); }

std::optional<EQuorConversionType> ProbeDialog::ChosenType() const {
    const QListWidgetItem* const item = m_types->currentItem();
    const auto type = EQuorConversionType{item ? item->data(Qt::UserRole).toInt() : CONV_NONE};
    return type == CONV_NONE ? std::nullopt : std::optional(type);
}

} // namespace ProbeSetup
