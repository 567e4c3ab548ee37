// A child process with a life of its own, for tests of what ends or changes a process.
#pragma once

#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace essais {

/// Runs `f` in a child; its result is the child's exit status.
template <class F> pid_t enfante(F&& f) {
    const pid_t pid = fork();
    if (pid == 0)
        _exit(f());
    return pid;
}

/// Waits for the child; its exit status, or 1000 plus the signal that ended it.
inline int issue(pid_t pid) {
    int etat = 0;
    EXPECT_EQ(waitpid(pid, &etat, 0), pid);
    return WIFEXITED(etat) ? WEXITSTATUS(etat) : 1000 + WTERMSIG(etat);
}

} // namespace essais
