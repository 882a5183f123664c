#include "toolkits/qt/HelpWindow.h"

#include "QuorConversions/qt/QtText.h"
#include "QuorIniFile/QuorError.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpLink>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace QuorConversions::QtToolkit {
namespace {

using QuorIniFile::QuorError;

/// The keyword of the page with which a collection begins.
const QLatin1String homeKeyword("index");

QUrl PageOf(const QHelpEngineCore& engine, const QString& keyword) {
    return engine.documentsForIdentifier(keyword).value(0).url;
}

/// The style of links: in the colour of the desktop, where that can be read. Not each dark palette has one.
QString LinkStyle(const QPalette& palette) {
    const auto isDark = [](const QColor& colour) {
        constexpr double half = 0.5;
        return 0.299 * colour.redF() + 0.587 * colour.greenF() + 0.114 * colour.blueF() < half;
    };
    const QColor link = palette.color(QPalette::Link);
    const bool isHidden = isDark(link) && isDark(palette.color(QPalette::Base));
    return QStringLiteral("a { color: %1 }").arg(isHidden ? QStringLiteral("#80C0FF") : link.name());
}

/// Shows pages of the collection alone.
class Page final : public QTextBrowser {
public:
    explicit Page(const QHelpEngineCore& engine) : m_engine(engine) {
        setOpenLinks(false);
        setWordWrapMode(QTextOption::WordWrap); // a word that is too wide for its column widens it
        document()->setDocumentMargin(fontMetrics().averageCharWidth());
    }

    QVariant loadResource(int type, const QUrl& name) override {
        const QUrl url = source().resolved(name);
        const QByteArray bytes = m_engine.fileData(url);
        if (bytes.isEmpty() && type == QTextDocument::HtmlResource)
            return HelpWindow::tr("The page %1 is missing.").arg(url.toDisplayString()).toHtmlEscaped();
        return bytes;
    }

private:
    const QHelpEngineCore& m_engine;
};

} // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QMainWindow(parent),
      m_engine(new QHelpEngine(QString(), this)),
      m_page(new Page(*m_engine)),
      m_topics(m_engine->contentWidget()),
      m_columns(new QSplitter(this)) {
    m_engine->setReadOnly(true);
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(tr("Help"));

    m_page->setAccessibleName(tr("Help page"));
    m_page->document()->setDefaultStyleSheet(LinkStyle(palette()));
    m_topics->setAccessibleName(tr("Topics"));
    m_topics->setHeaderHidden(true);
    m_topics->header()->setStretchLastSection(false);
    m_topics->header()->setSectionResizeMode(
        QHeaderView::ResizeToContents); // titles are not cut: they scroll

    auto* const right = new QWidget;
    auto* const rows = new QVBoxLayout(right);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(m_page);
    rows->addWidget(MakeFindBar());
    m_columns->addWidget(MakeTopics());
    m_columns->addWidget(right);
    m_columns->setStretchFactor(1, 1);
    m_columns->setChildrenCollapsible(false);
    setCentralWidget(m_columns);
    MakeActions();

    connect(m_topics, &QHelpContentWidget::linkActivated, this, &HelpWindow::FollowLink);
    connect(m_topics, &QHelpContentWidget::clicked, this, [this](const QModelIndex& index) {
        if (const auto* const item = m_engine->contentModel()->contentItemAt(index))
            FollowLink(item->url());
    });
    connect(m_engine->contentModel(), &QHelpContentModel::contentsCreated, this, [this] {
        m_topics->expandAll();
        FitTopics();
        ShowWherePageStands(m_page->source());
    });
    connect(m_page, &QTextBrowser::anchorClicked, this, &HelpWindow::FollowLink);
    connect(m_page, &QTextBrowser::sourceChanged, this, &HelpWindow::ShowWherePageStands);
    connect(m_page, &QTextBrowser::sourceChanged, m_findResult, &QLabel::clear);

    const QFontMetrics metrics = fontMetrics();
    const int topicsWidth = 40 * metrics.averageCharWidth();
    const QSize wanted(topicsWidth + 90 * metrics.averageCharWidth(), 42 * metrics.height());
    resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
    m_columns->setSizes({std::min(topicsWidth, width() / 3), width()});
}

QWidget* HelpWindow::MakeTopics() {
    m_searchText = new QLineEdit;
    m_searchText->setObjectName(QStringLiteral("search"));
    m_searchText->setAccessibleName(tr("Search in all pages"));
    m_searchText->setClearButtonEnabled(true);
    m_searchResults = new QListWidget;
    m_searchResults->setObjectName(QStringLiteral("searchResults"));
    m_searchResults->setAccessibleName(tr("Pages that contain the text"));
    m_searchResults->hide();
    auto* const label = new QLabel(tr("&Search:"));
    label->setBuddy(m_searchText);
    auto* const box = new QWidget;
    auto* const rows = new QVBoxLayout(box);
    rows->setContentsMargins(0, 0, 0, 0);
    auto* const line = new QHBoxLayout;
    const int margin = style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing) / 2;
    line->setContentsMargins(margin, margin, margin, 0);
    line->addWidget(label);
    line->addWidget(m_searchText);
    rows->addLayout(line);
    rows->addWidget(m_topics);
    rows->addWidget(m_searchResults);
    const auto open = [this](const QListWidgetItem* item) {
        if (item && !item->data(Qt::UserRole).toUrl().isEmpty())
            FollowLink(item->data(Qt::UserRole).toUrl());
    };
    connect(m_searchText, &QLineEdit::textChanged, this, &HelpWindow::Search);
    connect(m_searchText, &QLineEdit::returnPressed, this, [this, open] {
        m_searchResults->setCurrentRow(0);
        open(m_searchResults->currentItem());
    });
    connect(m_searchResults, &QListWidget::itemClicked, this, open);
    connect(m_searchResults, &QListWidget::itemActivated, this, open);
    return box;
}

void HelpWindow::Search(const QString& text) {
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    m_topics->setVisible(words.isEmpty());
    m_searchResults->setVisible(!words.isEmpty());
    m_searchResults->clear();
    // A collection has few pages: they are read each time, and no index is written.
    for (const QString& collection : m_engine->registeredDocumentations()) {
        for (const QUrl& page : m_engine->files(collection, QString(), QStringLiteral("html"))) {
            QTextDocument read;
            read.setHtml(QString::fromUtf8(m_engine->fileData(page)));
            const QString plain = read.toPlainText();
            if (words.isEmpty() || !std::all_of(words.begin(), words.end(), [&plain](const QString& word) {
                    return plain.contains(word, Qt::CaseInsensitive);
                }))
                continue;
            auto* const item = new QListWidgetItem(read.metaInformation(QTextDocument::DocumentTitle));
            item->setData(Qt::UserRole, page);
            m_searchResults->addItem(item);
        }
    }
    m_searchResults->sortItems();
    if (m_searchResults->count() == 0)
        m_searchResults->addItem(tr("No page contains this."));
}

void HelpWindow::FitTopics() {
    const int wanted = m_topics->header()->length() + 2 * m_topics->frameWidth() +
                       style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int topics = std::min(wanted, width() / 2);
    m_columns->setSizes({topics, width() - topics});
}

void HelpWindow::MakeActions() {
    auto* const back = AddAction(tr("&Back"), QKeySequence::Back);
    auto* const forward = AddAction(tr("&Forward"), QKeySequence::Forward);
    m_goHome = AddAction(tr("&All topics"), Qt::ALT | Qt::Key_Home);
    auto* const close = AddAction(tr("&Close"), QKeySequence::Close);
    auto* const find = AddAction(tr("&Find in page"), QKeySequence::Find);
    auto* const findNext = AddAction(tr("Find &next"), QKeySequence::FindNext);
    auto* const findPrevious = AddAction(tr("Find &previous"), QKeySequence::FindPrevious);
    auto* const larger = AddAction(tr("&Larger text"), QKeySequence::ZoomIn);
    auto* const smaller = AddAction(tr("&Smaller text"), QKeySequence::ZoomOut);
    // On many keyboards the plus sign needs Shift, and who zooms does not press it.
    larger->setShortcuts({QKeySequence(QKeySequence::ZoomIn), QKeySequence(Qt::CTRL | Qt::Key_Equal)});

    back->setIcon(style()->standardIcon(QStyle::SP_ArrowBack, nullptr, this));
    forward->setIcon(style()->standardIcon(QStyle::SP_ArrowForward, nullptr, this));
    m_goHome->setIcon(style()->standardIcon(QStyle::SP_DirHomeIcon, nullptr, this));
    back->setEnabled(false);
    forward->setEnabled(false);

    auto* const go = menuBar()->addMenu(tr("&Go"));
    go->addActions({back, forward, m_goHome});
    go->addSeparator();
    go->addAction(close);
    menuBar()->addMenu(tr("&Edit"))->addActions({find, findNext, findPrevious});
    menuBar()->addMenu(tr("&View"))->addActions({larger, smaller});

    auto* const bar = addToolBar(tr("Navigation"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addActions({back, forward, m_goHome, find});

    connect(m_page, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(m_page, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(back, &QAction::triggered, m_page, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, m_page, &QTextBrowser::forward);
    connect(m_goHome, &QAction::triggered, this, [this] { FollowLink(m_home); });
    connect(close, &QAction::triggered, this, &QWidget::close);
    connect(find, &QAction::triggered, this, &HelpWindow::OpenFindBar);
    connect(findNext, &QAction::triggered, this, [this] { Find(false); });
    connect(findPrevious, &QAction::triggered, this, [this] { Find(true); });
    connect(larger, &QAction::triggered, this, [this] { m_page->zoomIn(); });
    connect(smaller, &QAction::triggered, this, [this] { m_page->zoomOut(); });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &HelpWindow::Escape);
}

QAction* HelpWindow::AddAction(const QString& text, const QKeySequence& shortcut) {
    auto* const action = new QAction(text, this);
    action->setShortcut(shortcut);
    return action;
}

QWidget* HelpWindow::MakeFindBar() {
    m_findBar = new QWidget;
    m_findText = new QLineEdit;
    m_findResult = new QLabel;
    auto* const label = new QLabel(tr("F&ind:"));
    auto* const next = new QPushButton(tr("&Next"));
    auto* const previous = new QPushButton(tr("&Previous"));
    label->setBuddy(m_findText);
    m_findText->setAccessibleName(tr("Find in page"));
    m_findText->setClearButtonEnabled(true);
    m_findText->setMinimumWidth(20 * fontMetrics().averageCharWidth());

    auto* const columns = new QHBoxLayout(m_findBar);
    for (QWidget* const widget : std::initializer_list<QWidget*>{label, m_findText, next, previous})
        columns->addWidget(widget);
    columns->addWidget(m_findResult, 1);
    m_findBar->hide();

    connect(m_findText, &QLineEdit::returnPressed, this, [this] { Find(false); });
    connect(next, &QPushButton::clicked, this, [this] { Find(false); });
    connect(previous, &QPushButton::clicked, this, [this] { Find(true); });
    return m_findBar;
}

void HelpWindow::ShowTopic(const std::wstring& collection, std::int32_t topic) {
    const auto refuse = [](std::int32_t number, const QString& description) {
        throw QuorError(number, L"HelpWindow", FromQt(description));
    };
    const QString name = ToQt(collection);
    const QFileInfo file(name);
    if (!file.isFile())
        refuse(QuorIniFile::ERR_FILE_NOT_FOUND, tr("There is no help file \"%1\".").arg(name));
    // Looked up in an engine of its own first: a collection that has not got the topic replaces no other.
    QHelpEngineCore engine(file.absoluteFilePath());
    engine.setReadOnly(true);
    if (!engine.setupData() || engine.registeredDocumentations().isEmpty())
        refuse(QuorIniFile::ERR_PATH_FILE_ACCESS, tr("The file \"%1\" is not a help collection.").arg(name));
    const QUrl page = PageOf(engine, QString::number(topic));
    if (page.isEmpty() || engine.fileData(page).isEmpty())
        refuse(QuorIniFile::ERR_SUBSCRIPT_OUT_OF_RANGE,
               tr("The help file \"%1\" has no topic %2.").arg(name, QString::number(topic)));

    if (m_engine->collectionFile() != file.absoluteFilePath()) {
        m_engine->setCollectionFile(file.absoluteFilePath());
        m_engine->setupData();
        m_page->clearHistory();
        m_home = PageOf(*m_engine, homeKeyword);
        m_goHome->setEnabled(!m_home.isEmpty());
    }
    m_page->setSource(page);
    StandOnModalWindow();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    m_page->setFocus();
}

void HelpWindow::FollowLink(const QUrl& url) {
    if (url.scheme() == QLatin1String("qthelp"))
        m_page->setSource(url);
    else if (url.isValid())
        QDesktopServices::openUrl(url);
}

void HelpWindow::ShowWherePageStands(const QUrl& page) {
    const QString title = m_page->documentTitle();
    setWindowTitle(title.isEmpty() ? tr("Help") : tr("%1 - Help").arg(title));
    if (const QModelIndex topic = m_topics->indexOf(page); topic.isValid())
        m_topics->setCurrentIndex(topic);
}

void HelpWindow::OpenFindBar() {
    m_findBar->show();
    m_findText->setFocus();
    m_findText->selectAll();
}

void HelpWindow::Find(bool backwards) {
    if (m_findText->text().isEmpty()) {
        OpenFindBar();
        return;
    }
    const auto flags = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    m_findResult->clear();
    if (m_page->find(m_findText->text(), flags))
        return;
    const QTextCursor before = m_page->textCursor();
    m_page->moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
    const bool found = m_page->find(m_findText->text(), flags);
    if (!found)
        m_page->setTextCursor(before);
    m_findResult->setText(!found      ? tr("The page does not contain this text.")
                          : backwards ? tr("Continued from the end.")
                                      : tr("Continued from the beginning."));
}

void HelpWindow::Escape() {
    if (!m_findBar->isVisible()) {
        close();
        return;
    }
    m_findBar->hide();
    m_page->setFocus();
}

void HelpWindow::StandOnModalWindow() {
    winId(); // makes the window below the widget
    const QWidget* const modal = QApplication::activeModalWidget();
    const QWidget* const owner = modal ? modal : parentWidget();
    QWindow* const below = owner ? owner->window()->windowHandle() : nullptr;
    if (windowHandle()->transientParent() == below)
        return;
    windowHandle()->setTransientParent(below); // this unblocks it

    if (m_below)
        m_below->disconnect(this);
    m_below = modal ? below : nullptr;
    // A message over a dialog may go and leave the dialog, which would block this window now.
    if (m_below)
        connect(m_below, &QWindow::visibleChanged, this, &HelpWindow::StandOnModalWindow,
                Qt::QueuedConnection);
}

void HelpWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        m_page->document()->setDefaultStyleSheet(LinkStyle(palette()));
        m_page->reload(); // the colours of links are taken when a page is read
    }
}

} // namespace QuorConversions::QtToolkit
