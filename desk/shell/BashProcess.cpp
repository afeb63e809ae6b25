#include "desk/shell/BashProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace desk {

namespace {

constexpr int patienceInMilliseconds = 10'000;
constexpr int requestDescriptor = 7;
constexpr int nullDescriptor = 9;
// Above those that the shell's own are moved to, so that moving one doesn't close another.
constexpr int firstFreeDescriptor = 32;

int movedUp(int descriptor) {
    const int moved = ::fcntl(descriptor, F_DUPFD_CLOEXEC, firstFreeDescriptor);
    ::close(descriptor);
    return moved;
}

std::pair<int, int> makePipe() {
    int ends[2] = {-1, -1};
    if (::pipe2(ends, O_CLOEXEC) != 0) return {-1, -1};
    return {movedUp(ends[0]), movedUp(ends[1])};
}

std::pair<int, int> makeSocketPair() {
    int ends[2] = {-1, -1};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) return {-1, -1};
    const timeval patience{patienceInMilliseconds / 1000, 0};
    ::setsockopt(ends[0], SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
    return {movedUp(ends[0]), movedUp(ends[1])};
}

void closeIfOpen(int& descriptor) {
    if (descriptor >= 0) ::close(std::exchange(descriptor, -1));
}

// So that the fields can't be told apart wrongly: the shell has no texts with zeros either.
std::string field(std::string text) {
    std::erase(text, '\0');
    return text + '\0';
}

pid_t spawnBash(const std::vector<std::string>& words, const std::string& folder, int outputEnd, int errorEnd,
                int requestEnd) {
    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawnattr_init(&attributes);
    ::posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_addopen(&actions, nullDescriptor, "/dev/null", O_RDWR, 0);
    const std::pair<int, int> moves[] = {{outputEnd, 1}, {errorEnd, 2}, {requestEnd, requestDescriptor}};
    for (const auto& [from, to] : moves) ::posix_spawn_file_actions_adddup2(&actions, from, to);
    ::posix_spawn_file_actions_addchdir_np(&actions, folder.c_str());
    // A process group of its own, which can be ended as a whole.
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);

    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    std::string environment[] = {"HOME=/Users/ana", "USER=ana", "LANG=C.UTF-8", "PATH=/nonexistent"};
    char* variables[] = {environment[0].data(), environment[1].data(), environment[2].data(), environment[3].data(),
                         nullptr};
    pid_t process = -1;
    if (::posix_spawn(&process, "/bin/bash", &actions, &attributes, arguments.data(), variables) != 0) process = -1;
    ::posix_spawnattr_destroy(&attributes);
    ::posix_spawn_file_actions_destroy(&actions);
    return process;
}

}  // namespace

BashProcess::BashProcess(const std::string& text, const std::vector<std::string>& arguments,
                         const std::string& folder) {
    auto [outputRead, outputWrite] = makePipe();
    auto [errorRead, errorWrite] = makePipe();
    auto [requestOwn, requestOther] = makeSocketPair();
    output.descriptor = outputRead;
    errors.descriptor = errorRead;
    requests.descriptor = requestOwn;
    std::vector<std::string> words{"bash", "--noprofile", "--norc", "-c", text, "bash"};
    words.insert(words.end(), arguments.begin(), arguments.end());
    if (outputWrite >= 0 && errorWrite >= 0 && requestOther >= 0)
        process = spawnBash(words, folder, outputWrite, errorWrite, requestOther);
    closeIfOpen(outputWrite);
    closeIfOpen(errorWrite);
    closeIfOpen(requestOther);
}

BashProcess::~BashProcess() {
    closeIfOpen(output.descriptor);
    closeIfOpen(errors.descriptor);
    closeIfOpen(requests.descriptor);
}

ShellResult BashProcess::finish(const Answer& answer) {
    if (process < 0) return {127, "", "the shell can't be started\n"};
    Stream* streams[] = {&output, &errors, &requests};
    while (true) {
        std::vector<pollfd> waiting;
        for (const Stream* stream : streams)
            if (stream->descriptor >= 0) waiting.push_back({stream->descriptor, POLLIN, 0});
        if (waiting.empty() || ::poll(waiting.data(), waiting.size(), patienceInMilliseconds) <= 0) break;
        for (const pollfd& each : waiting) {
            if (each.revents == 0) continue;
            for (Stream* stream : streams)
                if (stream->descriptor == each.fd && !readInto(*stream)) closeIfOpen(stream->descriptor);
        }
        serve(answer);
    }
    const int status = waitForExit();
    return {status, std::move(output.read), std::move(errors.read)};
}

bool BashProcess::readInto(Stream& stream) {
    char block[4096];
    const ssize_t length = ::read(stream.descriptor, block, sizeof block);
    if (length <= 0) return false;
    stream.read.append(block, static_cast<std::size_t>(length));
    return true;
}

void BashProcess::serve(const Answer& answer) {
    while (const auto command = takeRequest()) {
        ShellResult result = answer(*command);
        const std::string reply =
            field(std::to_string(result.status)) + field(std::move(result.output)) + field(std::move(result.errors));
        for (std::size_t sent = 0; sent < reply.size() && requests.descriptor >= 0;) {
            const ssize_t length = ::send(requests.descriptor, reply.data() + sent, reply.size() - sent, MSG_NOSIGNAL);
            if (length <= 0) return;
            sent += static_cast<std::size_t>(length);
        }
    }
}

// The number of words and then the words, each ended by a zero.
std::optional<std::vector<std::string>> BashProcess::takeRequest() {
    std::vector<std::string> fields;
    std::size_t wanted = 1;
    std::size_t position = 0;
    while (fields.size() < wanted) {
        const std::size_t end = requests.read.find('\0', position);
        if (end == std::string::npos) return std::nullopt;
        fields.push_back(requests.read.substr(position, end - position));
        position = end + 1;
        if (fields.size() == 1) wanted = 1 + std::strtoull(fields.front().c_str(), nullptr, 10);
    }
    requests.read.erase(0, position);
    fields.erase(fields.begin());
    return fields;
}

// Whatever it left running in its group ends with it.
int BashProcess::waitForExit() {
    constexpr int killed = 128 + SIGKILL;
    int status = 0;
    pid_t ended = 0;
    for (int waited = 0; ended == 0 && waited < 1000; ++waited) {
        ended = ::waitpid(process, &status, WNOHANG);
        if (ended == 0) ::usleep(1000);
    }
    ::kill(-process, SIGKILL);
    if (ended == 0) ended = ::waitpid(process, &status, 0);
    if (ended != process) return killed;
    return WIFEXITED(status) ? WEXITSTATUS(status) : WIFSIGNALED(status) ? 128 + WTERMSIG(status) : killed;
}

}  // namespace desk
