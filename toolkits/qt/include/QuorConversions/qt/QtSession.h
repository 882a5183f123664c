#pragma once

#include "QuorConversions/qt/Export.h"

#include <memory>
#include <string>

class QApplication;

#ifndef QUOR_INSTALLED_HELP
#define QUOR_INSTALLED_HELP ""
#endif

namespace QuorConversions::QtToolkit {

class QtPlatform;

/// Whether there is a display on which windows can be shown. To be called before the QApplication is created,
/// which terminates a program without a display.
[[nodiscard]] QTTOOLKIT_EXPORT bool HasDisplay();

/// The path of the library's help collection, in the language of QLocale() if there is one, otherwise in
/// English. It is searched relative to the program, if both are installed under the same prefix, then in the
/// build folder, then at `installed`, which CMake sets for hosts that find the library. If there is none, the
/// path relative to the program is returned. Needs the QApplication.
[[nodiscard]] QTTOOLKIT_EXPORT std::wstring
HelpCollection(const std::string& installed = QUOR_INSTALLED_HELP);

/// For a program without Qt code of its own that shows a dialog occasionally: the QApplication, in the
/// language of the system, and a platform with the library's help. One at a time, in the main thread.
class QTTOOLKIT_EXPORT QtSession {
public:
    /// Creates the QApplication with that program name. Needs a display: see HasDisplay.
    explicit QtSession(std::string programName);
    QtSession(const QtSession&) = delete;
    QtSession& operator=(const QtSession&) = delete;
    ~QtSession();

    /// The platform; never null. It must not be used after the session.
    [[nodiscard]] const std::shared_ptr<QtPlatform>& Platform() const { return m_platform; }

private:
    std::string m_programName; // the QApplication keeps a reference to its arguments
    char* m_arguments[2];
    int m_argumentCount = 1;
    std::unique_ptr<QApplication> m_application;
    std::shared_ptr<QtPlatform> m_platform;
};

} // namespace QuorConversions::QtToolkit
