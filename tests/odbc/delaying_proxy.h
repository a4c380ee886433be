// A line to a server with a long way: every question waits, and is counted.
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>
#include <vector>

namespace kestrelix::testing_support {

/// Passes the bytes between one client and a server of this machine. A run of bytes from the client that
/// follows an answer is a round trip; it is held back for `delay`.
class DelayingProxy {
 public:
  DelayingProxy(int serverPort, std::chrono::milliseconds delay) : serverPort_(serverPort), delay_(delay) {
    listener_ = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = loopback(0);
    socklen_t length = sizeof address;
    if (bind(listener_, reinterpret_cast<sockaddr*>(&address), length) != 0 || listen(listener_, 4) != 0 ||
        getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &length) != 0)
      throw std::runtime_error("the proxy has no port");
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { serve(); });
  }
  ~DelayingProxy() {
    stop_ = true;
    thread_.join();
    close(listener_);
  }
  DelayingProxy(const DelayingProxy&) = delete;
  DelayingProxy& operator=(const DelayingProxy&) = delete;

  int port() const { return port_; }
  int roundTrips() const { return trips_; }

 private:
  static sockaddr_in loopback(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    return address;
  }

  void serve() {
    while (!stop_) {
      pollfd waiting{listener_, POLLIN, 0};
      if (poll(&waiting, 1, 50) <= 0) continue;
      const int client = accept(listener_, nullptr, nullptr);
      const int server = socket(AF_INET, SOCK_STREAM, 0);
      const sockaddr_in address = loopback(serverPort_);
      if (connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        pass(client, server);
      close(client);
      close(server);
    }
  }

  void pass(int client, int server) {
    bool answered = true;
    std::array<pollfd, 2> ends{pollfd{client, POLLIN, 0}, pollfd{server, POLLIN, 0}};
    std::vector<char> buffer(64 * 1024);
    while (!stop_) {
      if (poll(ends.data(), ends.size(), 50) <= 0) continue;
      for (std::size_t from = 0; from < ends.size(); ++from) {
        if (ends[from].revents == 0) continue;
        const ssize_t got = recv(ends[from].fd, buffer.data(), buffer.size(), 0);
        if (got <= 0) return;
        if (from == 0 && answered) {
          ++trips_;
          std::this_thread::sleep_for(delay_);
        }
        answered = from == 1;
        for (ssize_t sent = 0; sent < got;) {
          const ssize_t now = send(ends[1 - from].fd, buffer.data() + sent,
                                   static_cast<std::size_t>(got - sent), MSG_NOSIGNAL);
          if (now <= 0) return;
          sent += now;
        }
      }
    }
  }

  int serverPort_;
  std::chrono::milliseconds delay_;
  int listener_ = -1;
  int port_ = 0;
  std::atomic<bool> stop_{false};
  std::atomic<int> trips_{0};
  std::thread thread_;
};

}  // namespace kestrelix::testing_support
