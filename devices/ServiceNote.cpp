#include "devices/ServiceNote.h"

#include "files/SafeFile.h"

#include <QFile>
#include <QFileInfo>

#include <string>

namespace fieldcal {
namespace {

constexpr std::uint32_t kAutomatic = 2;
constexpr std::uint32_t kOnDemand = 3;
constexpr qint64 kNoteBytes = 2;  // a digit and a line break

class ServiceNoteFile : public ServiceNote {
public:
    explicit ServiceNoteFile(QString file) : file_(std::move(file)) {}

    bool keep(std::uint32_t startType, QString* why) override {
        const std::string text = std::to_string(startType) + '\n';
        std::string reason;
        const bool written = makeFolders(QFileInfo(file_).path().toStdString(), &reason) &&
                             writeFile(file_.toStdString(), text.data(), text.size(), &reason);
        *why = QString::fromStdString(reason);
        if (!written) qCritical("%s", reason.c_str());
        return written;
    }

    std::optional<std::uint32_t> kept() override {
        QFile file(file_);
        if (!file.exists()) return std::nullopt;
        const QByteArray text = file.open(QIODevice::ReadOnly) ? file.read(kNoteBytes + 1) : QByteArray();
        for (const std::uint32_t startType : {kAutomatic, kOnDemand})
            if (text == QByteArray::number(startType) + '\n') return startType;
        qCritical("%s: it does not name a start type", qUtf8Printable(file_));
        return std::nullopt;
    }

    void drop() override {
        std::string why;
        if (!removeFile(file_.toStdString(), &why)) qCritical("%s", why.c_str());
    }

private:
    const QString file_;
};

}  // namespace

bool isRunnableStartType(std::uint32_t startType) {
    return startType == kAutomatic || startType == kOnDemand;
}

std::unique_ptr<ServiceNote> serviceNoteInFile(const QString& file) {
    return std::make_unique<ServiceNoteFile>(file);
}

}  // namespace fieldcal
