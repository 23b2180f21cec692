// A library to be preloaded. It simulates a failing disk for files below given folders: it makes the N-th call of a
// kind fail, or ends the program at that call. It also keeps a journal, from which the state of the folder after a
// power cut can be rebuilt.
//
//   FAILIO_FOLDERS   the folders, separated by ':'; absolute, without symbolic links
//   FAILIO_WITNESSED folders whose calls are recorded in the journal but never fail
//   FAILIO_KIND      open (for writing), write, fsync, rename, unlink, mkdir, or any of these; clock; sleep
//   FAILIO_NTH       which call of that kind, from 1; 0: none
//   FAILIO_ACTION    a number: the call fails with it; die, die-after: the program ends (137) before or after the call
//                    for KIND clock: the seconds by which the wall clock is moved at its N-th query
//                    for KIND sleep: no matter; the process stops itself (SIGSTOP) instead of the N-th sleep of a
//                    second or more, such as that of a delayed call of the simulated module, until somebody continues
//                    it
//   FAILIO_ONCE      set: later calls succeed; a disk that is full for good takes half of the write before
//   FAILIO_JOURNAL   a folder for the journal, and for a copy of each file's content when it is synced
//
// The file `hit` in the journal's folder names the first call that failed or ended the program.
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <string>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

constexpr int kDeathStatus = 137;

template <typename Function>
Function real(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

std::string setting(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

/// The settings are constant after construction, so any thread may read them.
struct Settings {
    std::string folders = setting("FAILIO_FOLDERS") + ':', kind = setting("FAILIO_KIND");
    std::string witnessed = folders + setting("FAILIO_WITNESSED") + ':';
    std::string action = setting("FAILIO_ACTION"), journal = setting("FAILIO_JOURNAL");
    int nth = std::atoi(setting("FAILIO_NTH").c_str());
    bool once = std::getenv("FAILIO_ONCE") != nullptr;
    int error() const { return std::atoi(action.c_str()); }
};

const Settings& settings() {
    static const auto* made = new Settings;
    return *made;
}

bool isBelow(const std::string& folders, const std::string& path) {
    for (std::size_t start = 0, end = 0; (end = folders.find(':', start)) != std::string::npos; start = end + 1) {
        const std::string folder = folders.substr(start, end - start);
        if (!folder.empty() && path.compare(0, folder.size(), folder) == 0 &&
            (path.size() == folder.size() || path[folder.size()] == '/')) {
            return true;
        }
    }
    return false;
}

bool isWatched(const std::string& path) {
    return isBelow(settings().folders, path);
}

bool isNoted(const std::string& path) {
    return isBelow(settings().witnessed, path);
}

std::string absolute(int folder, const char* path) {
    if (*path == '/') return path;
    char base[PATH_MAX] = {};
    if (folder == AT_FDCWD) {
        if (getcwd(base, sizeof base) == nullptr) return path;
    } else {
        (void)!readlink(("/proc/self/fd/" + std::to_string(folder)).c_str(), base, sizeof base - 1);
    }
    return std::string(base) + '/' + path;
}

std::string pathOf(int descriptor) {
    char path[PATH_MAX] = {};
    const ssize_t length = readlink(("/proc/self/fd/" + std::to_string(descriptor)).c_str(), path, sizeof path - 1);
    return length > 0 ? std::string(path, static_cast<std::size_t>(length)) : std::string();
}

bool exists(const std::string& path) {
    return access(path.c_str(), F_OK) == 0;
}

/// Writes with the functions of the C library, not those of this library.
void put(const std::string& file, const std::string& text, int flags) {
    const int descriptor = real<int (*)(const char*, int, ...)>("open")(file.c_str(), flags | O_WRONLY | O_CREAT, 0666);
    if (descriptor < 0) return;
    (void)!real<ssize_t (*)(int, const void*, std::size_t)>("write")(descriptor, text.data(), text.size());
    close(descriptor);
}

std::string contentOf(const std::string& path) {
    std::string content;
    const int descriptor = real<int (*)(const char*, int, ...)>("open")(path.c_str(), O_RDONLY);
    char part[65536];
    for (ssize_t got = 0; (got = read(descriptor, part, sizeof part)) > 0;)
        content.append(part, static_cast<std::size_t>(got));
    if (descriptor >= 0) close(descriptor);
    return content;
}

void note(const std::string& line) {
    if (!settings().journal.empty()) put(settings().journal + "/journal", line + '\n', O_APPEND);
}

void keepSynced(const std::string& path) {
    static std::atomic<int> count{0};
    if (settings().journal.empty()) return;
    struct stat now {};
    if (stat(path.c_str(), &now) != 0) return;
    if (S_ISDIR(now.st_mode)) return note("D\t" + path);
    const std::string copy = std::to_string(++count);
    put(settings().journal + '/' + copy, contentOf(path), O_TRUNC);
    note("S\t" + path + '\t' + copy);
}

/// One call on a watched file. It is counted, and fails or ends the program when its number is reached.
class Call {
public:
    Call(const char* kind, const std::string& path) {
        const Settings& s = settings();
        if (!isWatched(path) || s.nth == 0 || (s.kind != "any" && s.kind != kind)) return;
        static std::atomic<int> count{0};
        const int number = ++count;
        hit_ = number == s.nth;
        after_ = number > s.nth && !s.once;
        if (hit_) put(s.journal + "/hit", std::string(kind) + ' ' + path + '\n', O_TRUNC);
        if (hit_ && s.action == "die") _exit(kDeathStatus);
    }
    ~Call() {
        if (hit_ && settings().action == "die-after") _exit(kDeathStatus);
    }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

    bool fails() const {
        if (settings().error() == 0 || !(hit_ || after_)) return false;
        errno = settings().error();
        return true;
    }
    /// Returns how many of `size` bytes a disk that becomes full still accepts.
    std::size_t taken(std::size_t size) const {
        return hit_ && !settings().once && settings().error() == ENOSPC ? size / 2 : 0;
    }

private:
    bool hit_ = false;
    bool after_ = false;
};

bool isForWriting(int flags) {
    return (flags & O_ACCMODE) != O_RDONLY;
}

template <typename Open>
int openWatched(const std::string& path, int flags, const Open& open) {
    if (!isForWriting(flags) || !isNoted(path)) return open();
    const Call call("open", path);
    if (call.fails()) return -1;
    const bool wasThere = exists(path);
    const int descriptor = open();
    if (descriptor >= 0 && !wasThere) note("C\t" + path);
    return descriptor;
}

template <typename Write>
ssize_t writeWatched(int descriptor, std::size_t size, const Write& write) {
    const Call call("write", pathOf(descriptor));
    if (!call.fails()) return write(size);
    return call.taken(size) > 0 ? write(call.taken(size)) : -1;
}

template <typename Sync>
int syncWatched(int descriptor, const Sync& sync) {
    const std::string path = pathOf(descriptor);
    const Call call("fsync", path);
    if (call.fails()) return -1;
    const int status = sync(descriptor);
    if (status == 0 && isNoted(path)) keepSynced(path);
    return status;
}

template <typename Change>
int changeWatched(const char* kind, const std::string& path, const std::string& line, const Change& change) {
    const Call call(kind, path);
    if (call.fails()) return -1;
    const int status = change();
    if (status == 0 && isNoted(path)) note(line);
    return status;
}

/// Counts the calls of a kind that has no file. Returns whether the N-th one was reached now (`hit`) or earlier.
bool isReached(const char* kind, bool* hit) {
    const Settings& s = settings();
    if (s.nth == 0 || s.kind != kind) return false;
    static std::atomic<int> count{0};
    const int number = ++count;
    *hit = number == s.nth;
    if (*hit) put(s.journal + "/hit", std::string(kind) + '\n', O_TRUNC);
    return number >= s.nth;
}

/// Returns by how much the wall clock is wrong at this query.
std::time_t wrongSeconds() {
    bool hit = false;
    return isReached("clock", &hit) ? std::atol(settings().action.c_str()) : 0;
}

}  // namespace

#define FAILIO_EXPORT __attribute__((visibility("default")))

extern "C" {

FAILIO_EXPORT int openat(int folder, const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const auto mode = static_cast<mode_t>(va_arg(more, unsigned));
    va_end(more);
    static const auto next = real<int (*)(int, const char*, int, ...)>("openat");
    return openWatched(absolute(folder, path), flags, [&] { return next(folder, path, flags, mode); });
}

FAILIO_EXPORT int openat64(int folder, const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const auto mode = static_cast<mode_t>(va_arg(more, unsigned));
    va_end(more);
    return openat(folder, path, flags | O_LARGEFILE, mode);
}

FAILIO_EXPORT int open(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const auto mode = static_cast<mode_t>(va_arg(more, unsigned));
    va_end(more);
    return openat(AT_FDCWD, path, flags, mode);
}

FAILIO_EXPORT int open64(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const auto mode = static_cast<mode_t>(va_arg(more, unsigned));
    va_end(more);
    return openat(AT_FDCWD, path, flags | O_LARGEFILE, mode);
}

FAILIO_EXPORT FILE* fopen(const char* path, const char* mode) {
    static const auto next = real<FILE* (*)(const char*, const char*)>("fopen");
    const bool writes = std::strpbrk(mode, "wa+") != nullptr;
    FILE* file = nullptr;
    openWatched(absolute(AT_FDCWD, path), writes ? O_WRONLY : O_RDONLY, [&] {
        file = next(path, mode);
        return file != nullptr ? fileno(file) : -1;
    });
    return file;
}

FAILIO_EXPORT FILE* fopen64(const char* path, const char* mode) {
    return fopen(path, mode);
}

FAILIO_EXPORT ssize_t write(int descriptor, const void* bytes, std::size_t size) {
    static const auto next = real<ssize_t (*)(int, const void*, std::size_t)>("write");
    return writeWatched(descriptor, size, [&](std::size_t part) { return next(descriptor, bytes, part); });
}

FAILIO_EXPORT ssize_t writev(int descriptor, const iovec* parts, int count) {
    static const auto next = real<ssize_t (*)(int, const iovec*, int)>("writev");
    return writeWatched(descriptor, 0, [&](std::size_t) { return next(descriptor, parts, count); });
}

FAILIO_EXPORT int fsync(int descriptor) {
    return syncWatched(descriptor, real<int (*)(int)>("fsync"));
}

FAILIO_EXPORT int fdatasync(int descriptor) {
    return syncWatched(descriptor, real<int (*)(int)>("fdatasync"));
}

FAILIO_EXPORT int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) {
    static const auto next = real<int (*)(int, const char*, int, const char*, unsigned)>("renameat2");
    const std::string old = absolute(fromFolder, from), now = absolute(toFolder, to);
    return changeWatched("rename", now, "R\t" + old + '\t' + now,
                         [&] { return next(fromFolder, from, toFolder, to, flags); });
}

FAILIO_EXPORT int renameat(int fromFolder, const char* from, int toFolder, const char* to) {
    return renameat2(fromFolder, from, toFolder, to, 0);
}

FAILIO_EXPORT int rename(const char* from, const char* to) {
    return renameat2(AT_FDCWD, from, AT_FDCWD, to, 0);
}

FAILIO_EXPORT int unlinkat(int folder, const char* path, int flags) {
    static const auto next = real<int (*)(int, const char*, int)>("unlinkat");
    const std::string whole = absolute(folder, path);
    return changeWatched("unlink", whole, "U\t" + whole, [&] { return next(folder, path, flags); });
}

FAILIO_EXPORT int unlink(const char* path) {
    return unlinkat(AT_FDCWD, path, 0);
}

FAILIO_EXPORT int remove(const char* path) {
    struct stat now {};
    return unlinkat(AT_FDCWD, path, stat(path, &now) == 0 && S_ISDIR(now.st_mode) ? AT_REMOVEDIR : 0);
}

FAILIO_EXPORT int mkdir(const char* path, mode_t mode) {
    static const auto next = real<int (*)(const char*, mode_t)>("mkdir");
    const std::string whole = absolute(AT_FDCWD, path);
    return changeWatched("mkdir", whole, "M\t" + whole, [&] { return next(path, mode); });
}

FAILIO_EXPORT int clock_gettime(clockid_t clock, timespec* now) noexcept {
    static const auto next = real<int (*)(clockid_t, timespec*)>("clock_gettime");
    const int status = next(clock, now);
    if (status == 0 && (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE)) now->tv_sec += wrongSeconds();
    return status;
}

FAILIO_EXPORT int gettimeofday(timeval* now, void* zone) noexcept {
    static const auto next = real<int (*)(timeval*, void*)>("gettimeofday");
    const int status = next(now, zone);
    if (status == 0) now->tv_sec += wrongSeconds();
    return status;
}

FAILIO_EXPORT std::time_t time(std::time_t* now) noexcept {
    timeval precise{};
    gettimeofday(&precise, nullptr);
    if (now != nullptr) *now = precise.tv_sec;
    return precise.tv_sec;
}

FAILIO_EXPORT int nanosleep(const timespec* duration, timespec* rest) {
    static const auto next = real<int (*)(const timespec*, timespec*)>("nanosleep");
    bool hit = false;
    if (duration->tv_sec == 0 || !isReached("sleep", &hit) || !hit) return next(duration, rest);
    return std::raise(SIGSTOP);
}

}  // extern "C"
