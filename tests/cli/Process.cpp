#include "tests/cli/Process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "tests/TemporaryFolder.h"

namespace wxbrg::cli {

namespace {

void Check(int error, const char* what) {
    if (error != 0) throw std::system_error(error, std::generic_category(), what);
}

/// The files and the folder of a process to come.
class FileActions {
  public:
    FileActions() { Check(posix_spawn_file_actions_init(&actions_), "posix_spawn_file_actions_init"); }
    ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;

    void Open(int descriptor, const std::string& file, int flags) {
        Check(posix_spawn_file_actions_addopen(&actions_, descriptor, file.c_str(), flags, 0600),
              file.c_str());
    }
    void WorkIn(const std::filesystem::path& folder) {
        Check(posix_spawn_file_actions_addchdir_np(&actions_, folder.c_str()), folder.c_str());
    }
    const posix_spawn_file_actions_t* Get() const { return &actions_; }

  private:
    posix_spawn_file_actions_t actions_{};
};

std::vector<std::string> Environment(const std::map<std::string, std::string>& over) {
    std::vector<std::string> variables;
    for (char** variable = environ; *variable != nullptr; ++variable) {
        const std::string text = *variable;
        if (!over.contains(text.substr(0, text.find('=')))) variables.push_back(text);
    }
    for (const auto& [name, value] : over) variables.push_back(name + "=" + value);
    return variables;
}

/// As the system takes a list of texts; good as long as the texts.
std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

int WaitFor(pid_t process) {
    int status = 0;
    while (waitpid(process, &status, 0) == -1)
        if (errno != EINTR) Check(errno, "waitpid");
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace

ProcessResult RunProcess(const std::vector<std::string>& arguments, const ProcessSetting& setting) {
    const TemporaryFolder streams;
    FileActions actions;
    actions.Open(STDIN_FILENO, streams.Write("in", setting.input), O_RDONLY);
    actions.Open(STDOUT_FILENO, (streams / "out").string(), O_WRONLY | O_CREAT);
    actions.Open(STDERR_FILENO, (streams / "err").string(), O_WRONLY | O_CREAT);
    actions.WorkIn(setting.folder);
    std::vector<std::string> given = arguments;
    std::vector<std::string> environment = Environment(setting.environment);
    pid_t process = 0;
    Check(posix_spawnp(&process, given.front().c_str(), actions.Get(), nullptr, Pointers(given).data(),
                       Pointers(environment).data()),
          given.front().c_str());
    const int status = WaitFor(process);
    return {status, streams.Read("out"), streams.Read("err")};
}

}  // namespace wxbrg::cli
