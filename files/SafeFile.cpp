#include "files/SafeFile.h"

#include "files/SystemFile.h"

#include <atomic>

namespace fieldcal {
namespace {

constexpr int kMaxNames = 100;

bool refuse(const std::string& file, const std::string& reason, std::string* why) {
    *why = file + ": " + reason;
    return false;
}

bool isSeparator(char c) {
#ifdef _WIN32
    return c == '/' || c == '\\';
#else
    return c == '/';
#endif
}

/// Returns the folder without the final separator: "." for a name without a folder, and the separator itself for a file
/// in the root folder.
std::string folderOf(const std::string& file) {
    std::size_t end = file.size();
    while (end > 0 && !isSeparator(file[end - 1]))
        --end;
    if (end == 0) return ".";
    return end == 1 ? file.substr(0, 1) : file.substr(0, end - 1);
}

/// Creates a new file beside `file` and opens it for writing.
bool createBeside(const std::string& file, SystemFile* out, std::string* name) {
    static std::atomic<unsigned> count{0};
    for (int i = 0; i < kMaxNames; ++i) {
        *name = file + '.' + std::to_string(processNumber()) + '-' + std::to_string(count++) + ".part";
        if (out->create(*name, file)) return true;
        if (!out->nameIsTaken()) return false;
    }
    return false;
}

bool fill(SystemFile* file, const void* bytes, std::size_t size, Durability durability, std::string* reason) {
    std::uint64_t written = 0;
    const bool filled = file->write(bytes, size) && (durability == Durability::Later || file->sync()) &&
                        file->size(&written) && file->close();
    *reason = file->reason();
    if (filled && written != size) *reason = "it has not taken all that was written";
    return filled && written == size;
}

bool append(SystemFile* file, const std::string& heading, const std::string& lines, std::string* reason) {
    std::uint64_t size = 0;
    char last = '\n';
    if (!file->size(&size) || (size > 0 && !file->readAt(size - 1, &last))) {
        *reason = file->reason();
        return false;
    }
    const std::string text = (size == 0 ? heading : last != '\n' ? "\n" : "") + lines;
    std::uint64_t grown = 0;
    const bool called =
        file->seekToEnd() && file->write(text.data(), text.size()) && file->sync() && file->size(&grown);
    if (called && grown >= size + text.size()) return true;
    *reason = called ? "it has not taken all that was written" : file->reason();
    file->resize(size);
    return false;
}

}  // namespace

bool writeFile(const std::string& file, const void* bytes, std::size_t size, std::string* why, Durability durability) {
    const std::string target = behindLinks(file);
    std::string reason, temporary;
    if (!mayBeReplaced(target, &reason)) return refuse(file, reason, why);
    SystemFile part;
    if (!createBeside(target, &part, &temporary)) return refuse(file, part.reason(), why);
    if (!fill(&part, bytes, size, durability, &reason) || !renameOver(temporary, target, &reason)) {
        part.close();
        std::string ignored;
        unlinkFile(temporary, &ignored);
        return refuse(file, reason, why);
    }
    return durability == Durability::Later || syncFolder(folderOf(target), &reason) || refuse(file, reason, why);
}

bool appendLines(const std::string& file, const std::string& heading, const std::string& lines, std::string* why) {
    const std::string target = behindLinks(file);
    std::string reason;
    if (!mayBeReplaced(target, &reason)) return refuse(file, reason, why);
    SystemFile open;
    if (!open.openToChange(target)) return refuse(file, open.reason(), why);
    if (!append(&open, heading, lines, &reason)) return refuse(file, reason, why);
    if (!open.close()) return refuse(file, open.reason(), why);
    return syncFolder(folderOf(target), &reason) || refuse(file, reason, why);
}

bool syncFiles(const std::string& folder, const std::vector<std::string>& names, std::string* why) {
    for (const std::string& name : names) {
        SystemFile file;
        std::string path = folder;
        path.append("/").append(name);
        if (!file.openToSync(path) || !file.sync() || !file.close()) return refuse(path, file.reason(), why);
    }
    std::string reason;
    return syncFolder(folder, &reason) || refuse(folder, reason, why);
}

bool makeFolders(const std::string& folder, std::string* why) {
    std::string reason;
    for (std::size_t end = 1; end <= folder.size(); ++end) {
        if (end < folder.size() && !isSeparator(folder[end])) continue;
        const std::string part = folder.substr(0, end);
        if (isSeparator(part.back()) || part.back() == ':') continue;
        bool made = false;
        if (!makeFolder(part, &made, &reason)) return refuse(folder, "the folder cannot be created: " + reason, why);
        // If a power cut removed the new folder, the files in it would be lost as well.
        if (made && !syncFolder(folderOf(part), &reason)) return refuse(folder, reason, why);
    }
    return true;
}

bool removeFile(const std::string& file, std::string* why) {
    std::string reason;
    return (unlinkFile(file, &reason) && syncFolder(folderOf(file), &reason)) || refuse(file, reason, why);
}

}  // namespace fieldcal
