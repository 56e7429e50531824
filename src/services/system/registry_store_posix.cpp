#include "core/disk/durable_file.h"
#include "core/files/program_folder.h"
#include "services/system/registry_store_platform.h"
#include "services/values/native_path_text.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

/// One object in JSON, written whole at each change: a member for each key, named "<root>\<path>"
/// with the root's number in hexadecimal, and in it a member for each value. There are a handful.
class RegistryFile {
public:
    /// Reads the file; one that is missing has no keys.
    RegistryFile() : path_(ProgramConfigurationFolder() / "registry.json") {
        QFile file(NativePathText(path_));
        if (!file.exists()) {
            readable_ = true;
        } else if (file.open(QIODevice::ReadOnly)) {
            const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
            readable_ = document.isObject();
            keys_ = document.object();
        }
    }

    QJsonObject& Keys() { return keys_; }

    /// False when the file cannot be written, and for a file that could not be read: what it holds
    /// would be lost.
    [[nodiscard]] bool Save() const {
        std::error_code error;
        fs::create_directories(path_.parent_path(), error);
        return readable_ && !error &&
               !ReplaceFileDurably(path_, QJsonDocument(keys_).toJson().toStdString());
    }

private:
    fs::path path_;
    QJsonObject keys_;
    bool readable_ = false;
};

/// The member with that name but for case.
QJsonObject::iterator Find(QJsonObject& object, const QString& name) {
    auto member = object.begin();
    while (member != object.end() && member.key().compare(name, Qt::CaseInsensitive) != 0) {
        ++member;
    }
    return member;
}

QString Latin(std::string_view bytes) {
    // Every byte has a character, so that any name survives the way there and back.
    return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

QString NameOf(const RegistryKey& key) {
    return QString::number(static_cast<std::uint32_t>(key.root), 16) + QLatin1Char('\\') +
           Latin(key.path);
}

class FileRegistry final : public RegistryStore {
public:
    bool CreateKey(const RegistryKey& key) override {
        RegistryFile file;
        if (Find(file.Keys(), NameOf(key)) != file.Keys().end()) {
            return true;
        }
        file.Keys().insert(NameOf(key), QJsonObject());
        return file.Save();
    }

    bool SetNumber(const RegistryKey& key, std::string_view name, std::uint32_t number) override {
        RegistryFile file;
        const auto place = Find(file.Keys(), NameOf(key));
        if (place == file.Keys().end()) {
            return false;
        }
        QJsonObject values = place->toObject();
        const auto value = Find(values, Latin(name));
        values.insert(value == values.end() ? Latin(name) : value.key(),
                      static_cast<std::int32_t>(number));
        *place = values;
        return file.Save();
    }

    std::optional<std::string> Read(const RegistryKey& key, std::string_view name) override {
        RegistryFile file;
        const auto place = Find(file.Keys(), NameOf(key));
        if (place == file.Keys().end()) {
            return std::nullopt;
        }
        QJsonObject values = place->toObject();
        const auto value = Find(values, Latin(name));
        if (value == values.end() || !value->isDouble()) {
            return std::nullopt;
        }
        return std::to_string(value->toInt());
    }
};

} // namespace

RegistryStore& PlatformRegistry() {
    static FileRegistry registry;
    return registry;
}

} // namespace tavmoor
