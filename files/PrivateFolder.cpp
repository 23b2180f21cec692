#include "files/PrivateFolder.h"

#include "files/SystemFolder.h"

#include <algorithm>
#include <random>

namespace fieldcal {
namespace {

constexpr int kMaxNames = 100;
constexpr std::size_t kDigits = 32;
constexpr const char* kHexadecimal = "0123456789abcdef";

std::string randomDigits() {
    std::random_device device;
    std::uniform_int_distribution<std::size_t> digit(0, 15);
    std::string digits(kDigits, '0');
    std::generate(digits.begin(), digits.end(), [&] { return kHexadecimal[digit(device)]; });
    return digits;
}

bool isOurName(const std::string& name, const std::string& stem) {
    return name.size() == stem.size() + kDigits && name.compare(0, stem.size(), stem) == 0 &&
           name.find_first_not_of(kHexadecimal, stem.size()) == std::string::npos;
}

}  // namespace

bool makePrivateFolder(const std::string& parent, const std::string& stem, std::string* folder, std::string* why) {
    std::string reason;
    for (int i = 0; i < kMaxNames; ++i) {
        bool nameIsTaken = false;
        *folder = parent;
        folder->append("/").append(stem).append(randomDigits());
        if (createPrivateFolder(*folder, &nameIsTaken, &reason)) return true;
        if (!nameIsTaken) break;
    }
    *why = *folder + ": " + reason;
    folder->clear();
    return false;
}

bool removePrivateFolder(const std::string& folder, const std::string& file) {
    return removeOwnFolder(folder, file);
}

void removePrivateFolders(const std::string& parent, const std::string& stem, const std::string& file) {
    for (const std::string& name : namesIn(parent)) {
        if (!isOurName(name, stem)) continue;
        std::string folder = parent;
        folder.append("/").append(name);
        removeOwnFolder(folder, file);
    }
}

}  // namespace fieldcal
