#include "apps/probe-setup/WindowSettings.h"

#include "QuorConversions/core/modMessages.h"
#include "QuorConversions/qt/QtText.h"
#include "QuorIniFile/QuorError.h"

#include <utility>

namespace ProbeSetup {

using QuorConversions::QtToolkit::FromQt;
using QuorConversions::QtToolkit::ToQt;
using QuorIniFile::QuorError;

namespace {

constexpr const wchar_t* windowSection = L"Main window";

} // namespace

WindowSettings::WindowSettings(std::shared_ptr<QuorRegistryII::Registry> registry,
                               std::function<void(const QString&)> fail)
    : m_registry(std::move(registry)), m_fail(std::move(fail)) {}

QString WindowSettings::Read(const wchar_t* name) const {
    std::wstring value;
    try {
        if (m_registry)
            static_cast<void>(m_registry->ReadValue(windowSection, name, value));
    } catch (const QuorError&) {
        // A window whose place is lost opens all the same.
    }
    return ToQt(value);
}

void WindowSettings::Write(const wchar_t* name, const QString& value) {
    try {
        if (m_registry && Read(name) != value)
            m_registry->WriteValue(windowSection, name, FromQt(value));
    } catch (const QuorError& error) {
        m_fail(ToQt(QuorConversions::DescriptionOf(error)));
    }
}

} // namespace ProbeSetup
