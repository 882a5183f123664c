// A window from which text or files are dragged, as from another program. Usage: DragSource text TEXT, or
// DragSource files PATH...

#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

namespace {

class DragSource final : public QLabel {
public:
    explicit DragSource(QStringList dragged) : QLabel(dragged.join(u'\n')), m_dragged(std::move(dragged)) {
        setWindowTitle(QStringLiteral("Drag source"));
        setFixedSize(200, 100);
    }

protected:
    void mousePressEvent(QMouseEvent* /*event*/) override {} // a label would pass it on
    void mouseMoveEvent(QMouseEvent* /*event*/) override {
        auto* const mime = new QMimeData;
        if (m_dragged.front() == QLatin1String("text")) {
            mime->setText(m_dragged.at(1));
        } else {
            QList<QUrl> files;
            for (const QString& path : m_dragged.mid(1))
                files += QUrl::fromLocalFile(path);
            mime->setUrls(files);
        }
        auto* const drag = new QDrag(this);
        drag->setMimeData(mime);
        drag->exec(Qt::CopyAction | Qt::MoveAction);
    }

private:
    QStringList m_dragged;
};

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const QStringList dragged = QApplication::arguments().mid(1);
    if (dragged.size() < 2)
        return 2;
    DragSource source(dragged);
    source.show();
    return QApplication::exec();
}
