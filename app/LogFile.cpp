#include "app/LogFile.h"

#include <QDateTime>
#include <QDir>

#include <cstdio>
#include <mutex>

namespace fieldcal {
namespace {

std::mutex theMutex;  // guards the log and its file: a thread may log while the program ends
LogFile* theLog = nullptr;

const char* levelName(QtMsgType type) {
    switch (type) {
        case QtDebugMsg:
            return "debug";
        case QtInfoMsg:
            return "info";
        case QtWarningMsg:
            return "warning";
        case QtCriticalMsg:
            return "critical";
        case QtFatalMsg:
            return "fatal";
    }
    return "";
}

}  // namespace

LogFile::LogFile(const QString& folder) : path_(folder + "/field-calibrator.log"), file_(path_) {
    if (!QDir().mkpath(folder) || !file_.open(QIODevice::Append | QIODevice::Unbuffered)) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(path_), qPrintable(file_.errorString()));
    }
    const std::lock_guard lock(theMutex);
    previous_ = qInstallMessageHandler(&LogFile::receive);
    theLog = this;
}

LogFile::~LogFile() {
    const std::lock_guard lock(theMutex);
    theLog = nullptr;
    qInstallMessageHandler(previous_);
}

void LogFile::receive(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    QtMessageHandler previous = nullptr;
    {
        const std::lock_guard lock(theMutex);
        if (theLog == nullptr) return;
        previous = theLog->previous_;
        theLog->write(type, text);
    }
    // This call comes last, because it does not return after a fatal message.
    previous(type, context, text);
}

void LogFile::write(QtMsgType type, const QString& text) {
    const QString line =
        QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs) + ' ' + levelName(type) + ' ' + text + '\n';
    if (file_.isOpen() && file_.size() >= kFullBytes) rotate();
    if (file_.isOpen()) file_.write(line.toUtf8());
}

void LogFile::rotate() {
    file_.close();
    const auto numbered = [this](int number) { return path_ + '.' + QString::number(number); };
    QFile::remove(numbered(kKeptFiles));
    for (int number = kKeptFiles - 1; number >= 1; --number)
        QFile::rename(numbered(number), numbered(number + 1));
    QFile::rename(path_, numbered(1));
    if (!file_.open(QIODevice::Append | QIODevice::Unbuffered)) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(path_), qPrintable(file_.errorString()));
    }
}

}  // namespace fieldcal
