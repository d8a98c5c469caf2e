// Interfaces of add-ons that a service was given: it holds a reference of each
// until it is removed. User-interface thread only.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace workbench {

// A reference held for the length of a block.
template <typename Interface>
class Held {
 public:
  explicit Held(Interface* object) : object_(object) { object_->AddRef(); }
  ~Held() { object_->Release(); }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;
  Interface* operator->() const { return object_; }

 private:
  Interface* object_;
};

template <typename Interface>
class ClientList {
 public:
  // False for null and for a client that is there already.
  bool add(Interface* client) {
    if (client == nullptr || contains(client)) {
      return false;
    }
    client->AddRef();
    clients_.push_back(client);
    return true;
  }
  bool remove(Interface* client) {
    const auto found = std::find(clients_.begin(), clients_.end(), client);
    if (found == clients_.end()) {
      return false;
    }
    clients_.erase(found);
    client->Release();
    return true;
  }
  bool contains(Interface* client) const {
    return std::find(clients_.begin(), clients_.end(), client) != clients_.end();
  }
  std::size_t size() const { return clients_.size(); }
  Interface* operator[](std::size_t index) const { return clients_[index]; }

  // Calls every client that is there at the start and still is at its turn: a
  // client may come or go from within the call.
  template <typename Call>
  void each(Call call) {
    const std::vector<Interface*> now = clients_;
    for (Interface* client : now) {
      if (contains(client)) {
        const Held<Interface> held(client);
        call(client);
      }
    }
  }

 private:
  std::vector<Interface*> clients_;
};

}  // namespace workbench
