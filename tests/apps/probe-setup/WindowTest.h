#pragma once

#include "QuorConversions/qt/QtText.h"
#include "apps/probe-setup/MainWindow.h"
#include "tests/apps/probe-setup/HostFile.h"
#include "tests/apps/probe-setup/MemoryRegistry.h"
#include "tests/toolkits/qt/QtScreen.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTreeView>

#include <functional>
#include <memory>
#include <ostream>
#include <string>

inline void PrintTo(const QString& text, std::ostream* out) { *out << text.toStdString(); }

/// The window on the file "host.ini", and a person with a keyboard.
class WindowTest : public HostFileTest {
protected:
    void SetUp() override {
        HostFileTest::SetUp();
        Show();
        ASSERT_TRUE(window->OpenPath(Path("host.ini")));
    }
    void Show() {
        window = std::make_unique<ProbeSetup::MainWindow>(std::make_shared<MemoryRegistry>(), QString());
        window->show();
        ComeToFront(*window);
    }
    static void ComeToFront(QWidget& front) {
        front.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &front; }));
    }
    void Open(const std::string& text) {
        folder.Write("host.ini", text);
        ASSERT_TRUE(window->OpenPath(Path("host.ini")));
    }
    [[nodiscard]] QString Path(std::string_view file) const {
        return QuorConversions::QtToolkit::ToQt(folder.Name(file));
    }
    [[nodiscard]] QTreeView& Table() const { return window->Table(); }
    [[nodiscard]] QModelIndex Row(int row, int column = 0) const {
        return Table().model()->index(row, column);
    }
    [[nodiscard]] QStringList Names() const {
        QStringList names;
        for (int row = 0; row < Table().model()->rowCount(); ++row)
            names += Row(row).data().toString();
        return names;
    }
    template <class Widget>
    [[nodiscard]] Widget& Find(const char* name) const {
        auto* const widget = window->findChild<Widget*>(QString::fromLatin1(name));
        if (!widget)
            throw std::runtime_error(std::string("there is no ") + name);
        return *widget;
    }
    [[nodiscard]] QAction& Action(const char* name) const { return Find<QAction>(name); }
    void GoTo(int row) const {
        ComeToFront(*window);
        Table().setFocus();
        // As a click without Ctrl, which the last key may have left behind.
        Table().selectionModel()->setCurrentIndex(Row(row), QItemSelectionModel::ClearAndSelect |
                                                                QItemSelectionModel::Rows);
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        ComeToFront(*window);
        QTest::keyClick(&Table(), key, modifiers);
    }
    /// Does something in the next window of that kind, as soon as it has the keyboard.
    template <class Window>
    static void WhenShown(std::function<void(Window&)> action) {
        Support::WhenShown([](QWidget& shown) { return qobject_cast<Window*>(&shown) != nullptr; },
                           [action = std::move(action)](QWidget& shown) {
                               ComeToFront(shown);
                               action(static_cast<Window&>(shown));
                           });
    }
    /// Answers the next message with a button; its text goes to `text`.
    static void WillAnswer(QMessageBox::StandardButton button, QString* text = nullptr) {
        WhenShown<QMessageBox>([button, text](QMessageBox& box) {
            if (text)
                *text = box.text() + QLatin1Char('|') + box.informativeText();
            ASSERT_TRUE(box.button(button));
            QTest::mouseClick(box.button(button), Qt::LeftButton);
        });
    }

    std::unique_ptr<ProbeSetup::MainWindow> window;
};
