#include "apps/probe-setup/ProbeClipboard.h"

#include "QuorConversions/qt/QtText.h"
#include "QuorIniFile/QuorError.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QTemporaryFile>

namespace ProbeSetup {

using QuorConversions::QtToolkit::FromQt;
using QuorConversions::QtToolkit::ToQt;

void ProbeClipboard::Copy(ProbeDocument& document, const std::vector<std::size_t>& probes) {
    QGuiApplication::clipboard()->setText(ToQt(document.TextOf(probes)));
}

std::vector<std::size_t> ProbeClipboard::Paste(ProbeDocument& document) {
    // The store reads files; this one goes when it has been read.
    QTemporaryFile file(QDir::temp().filePath(QStringLiteral("probe-setup-XXXXXX.ini")));
    const QByteArray text = QGuiApplication::clipboard()->text().toUtf8();
    if (!file.open() || file.write(text) != text.size() || !file.flush())
        throw QuorIniFile::QuorError(QuorIniFile::ERR_PATH_FILE_ACCESS, L"ProbeClipboard",
                                     FromQt(file.fileName() + QStringLiteral(": ") + file.errorString()));
    return document.AddFrom(FromQt(file.fileName()));
}

} // namespace ProbeSetup
