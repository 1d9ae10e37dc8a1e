// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quorvan::test {

/// Whether a program is in one of the usual folders.
inline bool isInstalled(const std::string& program) {
    for (const char* folder : {"/usr/bin/", "/bin/", "/usr/sbin/"}) {
        if (::access((folder + program).c_str(), X_OK) == 0)
            return true;
    }
    return false;
}

/// A program of the test, with its standard input and output; ends with this object.
class ChildProcess {
public:
    explicit ChildProcess(const std::vector<std::string>& command) {
        int input[2];
        int output[2];
        if (::pipe2(input, O_CLOEXEC) != 0 || ::pipe2(output, O_CLOEXEC) != 0)
            throw std::runtime_error("pipe");
        std::vector<char*> arguments;
        arguments.reserve(command.size() + 1);
        for (const std::string& argument : command)
            arguments.push_back(const_cast<char*>(argument.c_str()));
        arguments.push_back(nullptr);
        pid_ = ::fork();
        if (pid_ == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGTERM); // a test that crashes leaves nothing behind
            ::dup2(input[0], STDIN_FILENO);
            ::dup2(output[1], STDOUT_FILENO);
            ::execvp(arguments[0], arguments.data());
            ::_exit(127);
        }
        ::close(input[0]);
        ::close(output[1]);
        input_ = input[1];
        output_ = output[0];
    }
    ~ChildProcess() {
        closeInput();
        ::close(output_);
        if (pid_ > 0) {
            ::kill(pid_, SIGTERM);
            wait();
        }
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    void write(std::string_view text) {
        if (::write(input_, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
            throw std::runtime_error("the child does not read");
    }
    void closeInput() {
        if (input_ >= 0)
            ::close(input_);
        input_ = -1;
    }

    /// The next line of its output without the line feed; what there is when the output ends.
    std::string readLine() {
        std::string line;
        for (char character = 0; ::read(output_, &character, 1) == 1 && character != '\n';)
            line += character;
        return line;
    }

    /// Asks a question of one line and reads an answer of one line.
    std::string ask(const std::string& line) {
        write(line + "\n");
        return readLine();
    }

    /// Waits until it ends by itself; its exit code.
    int wait() {
        int status = 0;
        ::waitpid(pid_, &status, 0);
        pid_ = -1;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    pid_t pid_ = -1;
    int input_ = -1;
    int output_ = -1;
};

/// Runs a program to its end with a text as its input; its exit code.
inline int run(const std::vector<std::string>& command, std::string_view input = {}) {
    ChildProcess child(command);
    child.write(input);
    child.closeInput();
    return child.wait();
}

/// An empty folder that goes with this object.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "quorvan-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr)
            throw std::runtime_error("mkdtemp");
        path = name;
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::filesystem::path path;
};

} // namespace quorvan::test
