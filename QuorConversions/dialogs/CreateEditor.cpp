// Which dialog belongs to which class of settings.

#include "QuorConversions/dialogs/frmCVDSettings.h"
#include "QuorConversions/dialogs/frmHTPRTSettings.h"
#include "QuorConversions/dialogs/frmIPTS68Settings.h"
#include "QuorConversions/dialogs/frmITS90Settings.h"
#include "QuorConversions/dialogs/frmPT100Settings.h"
#include "QuorConversions/dialogs/frmPolynomialSettings.h"
#include "QuorConversions/dialogs/frmTCPolynomialSettings.h"
#include "QuorConversions/dialogs/frmTCTableSettings.h"
#include "QuorConversions/dialogs/frmTCTypePolySettings.h"
#include "QuorConversions/dialogs/frmTCTypeXSettings.h"
#include "QuorConversions/dialogs/frmThermistorSettings.h"
#include "QuorConversions/dialogs/frmWT90Settings.h"

namespace QuorConversions {
namespace {

using Editor = std::unique_ptr<SettingsEditor>;

/// The dialog, when it is the one of the object's class.
template <class Settings, class Form>
Editor Try(SettingsObject& settings, const std::shared_ptr<Platform>& platform) {
    auto* const object = dynamic_cast<Settings*>(&settings);
    return object ? std::make_unique<Form>(*object, platform) : nullptr;
}

constexpr Editor (*forms[])(SettingsObject&, const std::shared_ptr<Platform>&) = {
    Try<CQuorITS90, frmITS90Settings>,
    Try<CQuorIPTS68, frmIPTS68Settings>,
    Try<CQuorCVD, frmCVDSettings>,
    Try<CQuorPT100, frmPT100Settings>,
    Try<CQuorHTPRT, frmHTPRTSettings>,
    Try<CQuorWT90, frmWT90Settings>,
    Try<CQuorThermistor, frmThermistorSettings>,
    Try<CQuorPolynomial, frmPolynomialSettings>,
    Try<CQuorTCPolynomial, frmTCPolynomialSettings>,
    Try<CQuorTCTable, frmTCTableSettings>,
    Try<CQuorTCTypeX, frmTCTypeXSettings>,
    Try<CQuorTCTypePoly, frmTCTypePolySettings>,
};

} // namespace

std::unique_ptr<SettingsEditor> CreateEditor(SettingsObject& settings,
                                             const std::shared_ptr<Platform>& platform) {
    for (const auto& form : forms)
        if (auto editor = form(settings, platform))
            return editor;
    return nullptr;
}

} // namespace QuorConversions
