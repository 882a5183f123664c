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

/// Whether there is a display on which windows can be shown. Asked before the QApplication is made, which
/// ends a program without one.
[[nodiscard]] QTTOOLKIT_EXPORT bool HasDisplay();

/// The help collection of the library, in the language of QLocale() where there is one, or else in English:
/// beside the program, where both are installed, or where the build has put it, or else where `installed` is,
/// which a host that finds the library by CMake gets from there. Names the one beside the program where there
/// is none of them. Needs the QApplication.
[[nodiscard]] QTTOOLKIT_EXPORT std::wstring
HelpCollection(const std::string& installed = QUOR_INSTALLED_HELP);

/// For a program that has no Qt of its own and shows a dialog now and then: the QApplication, in the language
/// of the system, and a platform on it with the library's help. One at a time, in the main thread.
class QTTOOLKIT_EXPORT QtSession {
public:
    explicit QtSession(std::string programName);
    QtSession(const QtSession&) = delete;
    QtSession& operator=(const QtSession&) = delete;
    ~QtSession();

    [[nodiscard]] const std::shared_ptr<QtPlatform>& Platform() const { return m_platform; }

private:
    std::string m_programName; // the QApplication keeps a reference to its arguments
    char* m_arguments[2];
    int m_argumentCount = 1;
    std::unique_ptr<QApplication> m_application;
    std::shared_ptr<QtPlatform> m_platform;
};

} // namespace QuorConversions::QtToolkit
