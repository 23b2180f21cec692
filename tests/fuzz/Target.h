#pragma once

#include <QByteArray>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace fieldcal::fuzz {

/// A parser of bytes from outside. `run` gives it the bytes, in a file of the current folder where it reads files, and
/// aborts when the parser breaks a promise.
struct Target {
    const char* name;  ///< also of its folder in corpus/
    void (*run)(const QByteArray& bytes);
    QByteArray (*repaired)(QByteArray bytes) = nullptr;  ///< corrects checksums, which changed bytes would not get past
};

std::vector<Target> recordingTargets();   ///< recordings, results and imported files
std::vector<Target> dataFolderTargets();  ///< files that the program keeps
std::vector<Target> updateTargets();      ///< answers of the download server

inline std::vector<Target> allTargets() {
    std::vector<Target> all;
    for (const auto& some : {recordingTargets(), dataFolderTargets(), updateTargets()})
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

inline void require(bool condition, const char* promise) {
    if (condition) return;
    std::fprintf(stderr, "not kept: %s\n", promise);
    std::abort();
}

inline void put(const char* file, const QByteArray& bytes) {
    QFile out(file);
    require(out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size(), "the input can be written");
}

inline QByteArray contentOf(const char* file) {
    QFile in(file);
    require(in.open(QIODevice::ReadOnly), "the file is there");
    return in.readAll();
}

/// A refusal is one line that begins with the file.
inline void requireRefusal(const std::string& why, const std::string& file) {
    require(why.rfind(file + ": ", 0) == 0, "a refusal names the file");
    require(why.find('\n') == std::string::npos, "a refusal is one line");
}

}  // namespace fieldcal::fuzz
