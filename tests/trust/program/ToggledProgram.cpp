#include "tests/trust/program/ToggledProgram.h"

#include "tests/trust/WatchingReader.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int Patience = 60'000; // milliseconds; a loaded machine is slow

// The program's environment: a home without settings, no screen, no printers.
std::vector<std::string> Environment(const std::string& home) {
    std::vector<std::string> settings = {"QT_QPA_PLATFORM=offscreen",
                                         "QT_QPA_GENERIC_PLUGINS=toggler",
                                         "QT_PLUGIN_PATH=" TOGGLER_PLUGINS,
                                         "LANG=C.UTF-8",
                                         "HOME=" + home,
                                         "XDG_CONFIG_HOME=" + home,
                                         "XDG_RUNTIME_DIR=" + home,
                                         "CUPS_SERVER=" + home + "/no-print-service"};
    for (const char* name : {"PATH", "TZ", "LD_LIBRARY_PATH"}) {
        if (const char* value = std::getenv(name)) {
            settings.push_back(std::string(name) + "=" + value);
        }
    }
    return settings;
}

[[noreturn]] void Execute(const std::string& executable, const std::string& home, int input, int output) {
    EndWithParent();
    dup2(input, 0);
    dup2(output, 1);
    std::vector<std::string> settings = Environment(home);
    std::vector<char*> environment;
    for (std::string& setting : settings) {
        environment.push_back(setting.data());
    }
    environment.push_back(nullptr);
    std::string name = executable;
    std::array<char*, 2> arguments = {name.data(), nullptr};
    execve(executable.c_str(), arguments.data(), environment.data());
    _exit(127);
}

} // namespace

ToggledProgram::ToggledProgram(const std::string& executable, const std::string& home) {
    std::array<int, 2> in = {};
    std::array<int, 2> out = {};
    if (pipe2(in.data(), O_CLOEXEC) != 0 || pipe2(out.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipes");
    }
    process = fork();
    if (process == 0) {
        Execute(executable, home, in[0], out[1]);
    }
    close(in[0]);
    close(out[1]);
    requests = in[1];
    answers = out[0];
}

ToggledProgram::~ToggledProgram() {
    Kill();
    close(requests);
    close(answers);
}

void ToggledProgram::Ask(char request) {
    if (write(requests, &request, 1) != 1) {
        throw std::runtime_error("the program takes no requests");
    }
}

// The number behind the word in the next line.
int ToggledProgram::Answer(const std::string& word) {
    std::string line;
    for (char next = 0; next != '\n'; line += next) {
        pollfd waiting = {answers, POLLIN, 0};
        if (poll(&waiting, 1, Patience) != 1 || read(answers, &next, 1) != 1) {
            throw std::runtime_error("the program does not answer \"" + word + "\"");
        }
    }
    if (!line.starts_with(word + ' ')) {
        throw std::runtime_error("the program answers " + line);
    }
    return std::stoi(line.substr(word.size() + 1));
}

pid_t ToggledProgram::Copy() {
    Ask('f');
    return Answer("here");
}

void ToggledProgram::AwaitEnd(pid_t copy) {
    if (Answer("dead") != copy) {
        throw std::runtime_error("another copy has ended");
    }
}

void ToggledProgram::Toggle() {
    Ask('t');
    Answer("here");
}

void ToggledProgram::Kill() {
    if (process > 0) {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
        process = 0;
    }
}
