// Writes its arguments and its working directory to a file beside itself. Then it runs until another file is there.
// With /LOCK it holds what has the name of the program's lock meanwhile.
#include <fstream>
#include <string>
#include <windows.h>

int main() {
    std::wstring path(MAX_PATH, L'\0'), folder(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    folder.resize(GetCurrentDirectoryW(MAX_PATH, folder.data()));
    const std::wstring line = GetCommandLineW();
    if (line.find(L"/LOCK") != std::wstring::npos)
        CreateMutexA(nullptr, FALSE, "Global\\{2d03313b-9681-45c0-be9a-547016098abc}");
    std::wofstream(std::string(path.begin(), path.end()) + ".txt")
        << line.substr(line.find_last_of(L'"') + 1) << L" in " << folder << std::endl;
    for (int i = 0; i < 400 && GetFileAttributesW((path + L".end").c_str()) == INVALID_FILE_ATTRIBUTES; ++i)
        Sleep(50);
}
