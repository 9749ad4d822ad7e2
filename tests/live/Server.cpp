#include "tests/live/Server.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>

namespace veldra::live {

namespace {

sockaddr_in localAddress(int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  address.sin_port = htons(static_cast<in_port_t>(port));
  return address;
}

bool answers(int port) {
  const int door = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_in address = localAddress(port);
  const bool isOpen =
      connect(door, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  close(door);
  return isOpen;
}

[[noreturn]] void become(const std::string& directory, std::vector<char*>& words) {
  setpgid(0, 0);
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  const int nowhere = open("/dev/null", O_RDWR);
  for (const int stream : {0, 1, 2}) dup2(nowhere, stream);
  if (chdir(directory.c_str()) == 0) execvp(words.front(), words.data());
  _exit(127);
}

}  // namespace

int freePort() {
  const int door = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address = localAddress(0);
  socklen_t size = sizeof address;
  const bool isBound = bind(door, reinterpret_cast<sockaddr*>(&address), size) == 0 &&
                       getsockname(door, reinterpret_cast<sockaddr*>(&address), &size) == 0;
  close(door);
  return isBound ? ntohs(address.sin_port) : 0;
}

Server::Server(const Sandbox& sandbox, const std::vector<std::string>& command, int port) {
  std::vector<std::string> line = {"env", "HOME=" + sandbox.path("home"), "LC_ALL=C.UTF-8"};
  line.insert(line.end(), command.begin(), command.end());
  std::vector<char*> words;
  for (std::string& word : line) words.push_back(word.data());
  words.push_back(nullptr);
  m_process = fork();
  if (m_process == 0) become(sandbox.path(), words);
  // A loaded machine takes its time.
  for (int wait = 0; wait < 1500 && !m_isListening; ++wait) {
    if (waitpid(m_process, nullptr, WNOHANG) != 0) return;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    m_isListening = answers(port);
  }
}

Server::~Server() {
  if (m_process <= 0) return;
  kill(-m_process, SIGKILL);
  waitpid(m_process, nullptr, 0);
}

}  // namespace veldra::live
