// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/help/help_collection.h"

#include <QDir>
#include <QFileInfo>

namespace varnholt {
namespace {

/// Where the pages stand inside the file.
constexpr QLatin1String folderInFile("help");

}  // namespace

bool HelpCollection::open(const QString& helpFile) {
    if (engine_ != nullptr && file_ == helpFile) return true;
    file_ = helpFile;
    space_ = QHelpEngineCore::namespaceName(helpFile);
    if (space_.isEmpty()) return false;
    QDir().mkpath(cacheFolder_);
    if (set(helpFile)) return true;
    removeOld();
    if (set(helpFile)) return true;
    useOwnFolder();
    return set(helpFile);
}

void HelpCollection::useOwnFolder() {
    ownFolder_ = std::make_unique<QTemporaryDir>();
    if (ownFolder_->isValid()) cacheFolder_ = ownFolder_->path();
}

bool HelpCollection::set(const QString& helpFile) {
    engine_ = std::make_unique<QHelpEngine>(cacheFolder_ + QStringLiteral("/help.qhc"));
    engine_->setReadOnly(false);
    engine_->setUsesFilterEngine(true);
    bool opened = engine_->setupData();
    // The help of another version, or of another program folder, is not the one that is wanted.
    for (const QString& other : engine_->registeredDocumentations())
        if (other != space_ || engine_->documentationFileName(other) != helpFile)
            engine_->unregisterDocumentation(other);
    if (opened && !engine_->registeredDocumentations().contains(space_))
        opened = engine_->registerDocumentation(helpFile) && engine_->setupData();
    // A collection may open and still have lost what it held.
    if (opened && !engine_->findFile(urlOf(QStringLiteral("index.html"))).isValid()) opened = false;
    if (!opened) engine_.reset();
    return opened;
}

void HelpCollection::removeOld() const {
    QDir folder(cacheFolder_);
    for (const QString& file : folder.entryList({QStringLiteral("help*.qhc")}, QDir::Files))
        folder.remove(file);
    for (const QString& index :
         folder.entryList({QStringLiteral(".help*"), QStringLiteral("help*")},
                          QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot))
        QDir(folder.filePath(index)).removeRecursively();
}

QUrl HelpCollection::urlOf(const QString& topic) const {
    return QUrl(QStringLiteral("qthelp://%1/%2/%3").arg(space_, folderInFile, topic));
}

QString HelpCollection::topicOf(const QUrl& url) {
    const QString file = url.path().section(u'/', -1);
    return url.hasFragment() ? file + u'#' + url.fragment() : file;
}

}  // namespace varnholt
