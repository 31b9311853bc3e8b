// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHelpEngine>
#include <QTemporaryDir>
#include <QUrl>
#include <memory>

namespace varnholt {

/// The help file as the toolkit's help engine knows it: registered in a collection in a folder of
/// the user's cache. A collection that is damaged is thrown away and made anew; where the cache may
/// not be written to, a folder that goes with the program serves.
class HelpCollection {
 public:
    explicit HelpCollection(QString cacheFolder) : cacheFolder_(std::move(cacheFolder)) {}

    /// False when the file is no help file.
    bool open(const QString& helpFile);
    /// Null before a file has been opened.
    QHelpEngine* engine() const { return engine_.get(); }
    /// "borehole.html#soil" as the engine addresses it.
    QUrl urlOf(const QString& topic) const;
    /// The topic again, of such an address.
    static QString topicOf(const QUrl& url);

 private:
    bool set(const QString& helpFile);
    void removeOld() const;
    void useOwnFolder();

    QString cacheFolder_, file_, space_;
    std::unique_ptr<QTemporaryDir> ownFolder_;
    std::unique_ptr<QHelpEngine> engine_;
};

}  // namespace varnholt
