#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace kestrelix {

/// A list of handlers that are called one after the other, in the order of connecting.
template <class... Arguments>
class Signal {
 public:
  void connect(std::function<void(Arguments...)> handler) { handlers_.push_back(std::move(handler)); }
  void operator()(Arguments... arguments) const {
    for (const auto& handler : handlers_) handler(arguments...);
  }

 private:
  std::vector<std::function<void(Arguments...)>> handlers_;
};

}  // namespace kestrelix
