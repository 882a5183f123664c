#pragma once

#include <QCoreApplication>
#include <QMainWindow>
#include <QPointer>
#include <QUrl>

#include <cstdint>
#include <string>

class QAction;
class QHelpContentWidget;
class QHelpEngine;
class QLabel;
class QLineEdit;
class QListWidget;
class QSplitter;
class QTextBrowser;
class QWindow;

namespace QuorConversions::QtToolkit {

/// A window that shows the pages of help collections: the topics beside the page, a search in all pages, the
/// way back, find in page, zoom. It is no modal window and no modal window blocks it while it shows a topic
/// that was asked for there. It remembers nothing from one run to the next, writes no file and fetches
/// nothing from a network.
class HelpWindow : public QMainWindow {
    Q_DECLARE_TR_FUNCTIONS(HelpWindow)

public:
    explicit HelpWindow(QWidget* parent = nullptr);

    /// Shows the page of the context number `topic`, the keyword under which the help collection (.qhc) has
    /// it. Raises QuorError 53 when there is no such file, 75 when it is not a help collection, 9 when it has
    /// no such topic; the description names the collection, and the window stays as it was.
    void ShowTopic(const std::wstring& collection, std::int32_t topic);

protected:
    void changeEvent(QEvent* event) override;

private:
    void MakeActions();
    QAction* AddAction(const QString& text, const QKeySequence& shortcut);
    QWidget* MakeFindBar();
    QWidget* MakeTopics();
    /// Lists the pages that contain all words of a text in the place of the topics; these again for an empty
    /// one.
    void Search(const QString& text);
    /// Gives the topics the width of the longest, as far as the page keeps the larger part.
    void FitTopics();
    void FollowLink(const QUrl& url);
    /// `page` is the new source, which the browser does not name yet when it says that it changes.
    void ShowWherePageStands(const QUrl& page);
    void OpenFindBar();
    void Find(bool backwards);
    /// Closes the find bar; the window, when that was closed.
    void Escape();
    /// Lays the window on the modal one, which would block it otherwise.
    void StandOnModalWindow();

    QHelpEngine* m_engine;
    QTextBrowser* m_page;
    QHelpContentWidget* m_topics;
    QWidget* m_findBar = nullptr;
    QLineEdit* m_findText = nullptr;
    QLabel* m_findResult = nullptr;
    QLineEdit* m_searchText = nullptr;
    QListWidget* m_searchResults = nullptr;
    QSplitter* m_columns;
    QUrl m_home;
    QAction* m_goHome = nullptr;
    QPointer<QWindow> m_below; ///< the modal window on which this one was laid
};

} // namespace QuorConversions::QtToolkit
