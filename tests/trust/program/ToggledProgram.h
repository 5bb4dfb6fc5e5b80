#pragma once

#include <string>
#include <sys/types.h>

/// The real program without a screen, with the plugin in it that presses its lock.
class ToggledProgram {
public:
    /// Starts the executable and waits for nothing; `home` is a folder for its settings.
    ToggledProgram(const std::string& executable, const std::string& home);
    /// Kills the program if it still runs.
    ~ToggledProgram();
    ToggledProgram(const ToggledProgram&) = delete;
    ToggledProgram& operator=(const ToggledProgram&) = delete;

    /// Makes a copy of the program that presses the lock until it is killed; its process number, once it runs.
    pid_t Copy();
    /// Waits for the end of a copy that was killed.
    void AwaitEnd(pid_t copy);
    /// Makes the program itself press the lock until it is killed.
    void Toggle();
    void Kill();

private:
    pid_t process = 0;
    int requests = -1;
    int answers = -1;

    void Ask(char request);
    int Answer(const std::string& word);
};
