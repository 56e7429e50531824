#include "services/sound/sound_output.h"

#include <QAudioDevice>
#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QMediaDevices>
#include <QPluginLoader>

namespace tavmoor {

namespace {

/// True for a backend that loads, and that is the one chosen where the user chose one.
bool IsUsableBackend(const QString& file) {
    const QString chosen = qEnvironmentVariable("QT_MEDIA_BACKEND");
    QPluginLoader plugin(file);
    const QJsonArray names = plugin.metaData()
                                 .value(QLatin1String("MetaData"))
                                 .toObject()
                                 .value(QLatin1String("Keys"))
                                 .toArray();
    return (chosen.isEmpty() || names.contains(chosen)) && plugin.load();
}

bool HasBackend() {
    for (const QString& folder : QCoreApplication::libraryPaths()) {
        const QDir plugins(folder + QStringLiteral("/multimedia"));
        for (const QString& name : plugins.entryList(QDir::Files)) {
            if (IsUsableBackend(plugins.filePath(name))) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

QString SoundOutputObjection() {
    if (!HasBackend()) {
        return QStringLiteral("No software that plays sound files is installed.");
    }
    if (QMediaDevices::defaultAudioOutput().isNull()) {
        return QStringLiteral("This computer has no sound device.");
    }
    return {};
}

} // namespace tavmoor
