#include "apps/probe-setup/ProbeDialog.h"

#include "QuorConversions/core/modStrings.h"
#include "QuorConversions/qt/QtText.h"
#include "apps/probe-setup/TypeChooser.h"
#include "apps/probe-setup/Wording.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace ProbeSetup {

using namespace QuorConversions;
using QtToolkit::FromQt;
using QtToolkit::ToQt;

ProbeDialog::ProbeDialog(QWidget* parent, const QString& probes, const TypeChoice& type,
                         std::function<void()> help)
    : QDialog(parent), m_buttons(new QDialogButtonBox) {
    setWindowTitle(tr("Conversion type of %1").arg(probes));
    Build(type, tr("A new type starts with default values; the present values are not kept."),
          std::move(help));
    m_types->List().setFocus();
    CheckInput();
}

ProbeDialog::ProbeDialog(QWidget* parent, const ProbeDocument& document, const QString& name,
                         std::function<void()> help)
    : QDialog(parent),
      m_document(&document),
      m_name(new QLineEdit(name)),
      m_problem(new QLabel),
      m_buttons(new QDialogButtonBox) {
    setWindowTitle(tr("Add a probe"));
    m_name->setObjectName(QStringLiteral("probeName"));
    m_problem->setObjectName(QStringLiteral("nameProblem"));
    m_problem->setTextFormat(Qt::PlainText); // a name may look like mark-up
    m_problem->setWordWrap(true);
    Build(CONV_ITS90, tr("The probe gets the default values of its type."), std::move(help));
    m_name->setFocus();
    m_name->selectAll();
    connect(m_name, &QLineEdit::textChanged, this, [this] { CheckInput(); });
    CheckInput();
}

void ProbeDialog::Build(const TypeChoice& selected, const QString& hint, std::function<void()> help) {
    setObjectName(QStringLiteral("probeDialog"));
    m_types = new TypeChooser(
        selected, [this] { CheckInput(); },
        [this] {
            if (m_buttons->button(QDialogButtonBox::Ok)->isEnabled())
                accept();
        });
    auto* const layout = new QVBoxLayout(this);
    if (m_name) {
        auto* const label = new QLabel(tr("&Name:"));
        label->setBuddy(m_name);
        layout->addWidget(label);
        layout->addWidget(m_name);
        layout->addWidget(m_problem);
    }
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
    // With a dozen types in sight, where the screen has room for them and for the frame of the window.
    const int more =
        std::max(0, m_types->List().sizeHintForRow(0) * 12 - m_types->List().sizeHint().height());
    const QSize wanted = sizeHint() + QSize(0, more);
    resize(wanted.expandedTo({fontMetrics().averageCharWidth() * 60, 0})
               .boundedTo(screen()->availableSize() -
                          QSize(0, 2 * style()->pixelMetric(QStyle::PM_TitleBarHeight))));
}

void ProbeDialog::CheckInput() {
    QString problem;
    if (m_name) {
        problem = Wording::Of(m_document->CheckName(FromQt(Name())), Name());
        m_problem->setText(problem);
        m_problem->setVisible(!problem.isEmpty());
    }
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(problem.isEmpty() && ChosenType());
}

QString ProbeDialog::Name() const { return m_name->text().trimmed(); }

std::optional<TypeChoice> ProbeDialog::ChosenType() const { return m_types->Chosen(); }

} // namespace ProbeSetup
