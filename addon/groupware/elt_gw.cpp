#include "addon/groupware/elt_gw.h"

namespace kesto {

namespace {

std::int64_t secondsOf(const std::optional<FileFacts>& facts) {
  return facts ? facts->seconds() : 0;
}

Age ageOf(const FileFacts& server, const FileFacts& local) {
  if (server.seconds() == local.seconds()) {
    return Age::kSame;
  }
  return server.seconds() > local.seconds() ? Age::kNewer : Age::kOlder;
}

// In the order of the rules: a later one goes before those above it.
Advice adviceOf(const FileFacts& server, const std::optional<FileFacts>& local) {
  if (!local) {
    return Advice::kRefresh;
  }
  const Age age = ageOf(server, *local);
  Advice advice = age == Age::kNewer ? Advice::kRefresh : Advice::kNothing;
  const bool held_here = !server.writable && local->writable;
  if (age == Age::kOlder && !held_here) {
    advice = Advice::kError;
  }
  if (server.writable && local->writable) {
    advice = Advice::kError;
  }
  return advice;
}

std::string joinFields(std::initializer_list<std::string_view> fields) {
  std::string row;
  for (const std::string_view field : fields) {
    row += row.empty() ? "" : "\t";
    row += field;
  }
  return row;
}

}  // namespace

const char* ageWord(Age age) {
  constexpr const char* kWords[] = {"Same", "NEW!", "Newer", "Older", "Conflict"};
  return kWords[static_cast<int>(age)];
}

const char* requestWord(SendRequest request) {
  constexpr const char* kWords[] = {" ", "Update", "Send", "CONFLICT"};
  return kWords[static_cast<int>(request)];
}

const char* adviceWord(Advice advice) {
  constexpr const char* kWords[] = {" ", "Refresh", "ERROR"};
  return kWords[static_cast<int>(advice)];
}

const char* requestWord(GetRequest request) {
  constexpr const char* kWords[] = {" ", "Refresh", "Get"};
  return kWords[static_cast<int>(request)];
}

EltGW::EltGW(std::string_view file, const FileFacts& own,
             const std::optional<FileFacts>& server_copy)
    : path(file), size(own.size), server(server_copy) {}

std::string EltGW::listedName(std::size_t root_length) const {
  return std::string(path.view().substr(root_length + 1));
}

EltGWsend::EltGWsend(std::string_view file, const FileFacts& local,
                     const std::optional<FileFacts>& server_copy)
    : EltGW(file, local, server_copy) {
  local_time = local.seconds();
  server_time = secondsOf(server_copy);
  age = server_copy ? ageOf(*server_copy, local) : Age::kNew;
  // Edited without holding the lock.
  if (server_copy && server_copy->writable && local.writable) {
    request = SendRequest::kConflict;
  }
}

bool EltGWsend::chosen() const {
  return request == SendRequest::kUpdate || request == SendRequest::kSend;
}

std::string EltGWsend::row(std::size_t root_length) const {
  return joinFields({listedName(root_length), ageWord(age), requestWord(request)});
}

EltGWget::EltGWget(std::string_view file, const FileFacts& server_copy,
                   const std::optional<FileFacts>& local)
    : EltGW(file, server_copy, server_copy),
      locked(!server_copy.writable),
      advice(adviceOf(server_copy, local)) {
  server_time = server_copy.seconds();
  local_time = secondsOf(local);
  age = local ? ageOf(server_copy, *local) : Age::kNew;
}

std::string EltGWget::row(std::size_t root_length) const {
  return joinFields({listedName(root_length), locked ? "Yes" : "No", ageWord(age),
                     adviceWord(advice), requestWord(request)});
}

}  // namespace kesto
