// EltGWsend and EltGWget: one file of the send list and of the get list, how its copies
// compare, and what each word of its row is. Plain code.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "addon/foundation/basic.h"
#include "addon/foundation/string.h"
#include "addon/groupware/group_files.h"

namespace kesto {

// The server's copy, seen from the local one.
enum class Age : std::int32_t { kSame, kNew, kNewer, kOlder, kConflict };
enum class SendRequest : std::int32_t { kNothing, kUpdate, kSend, kConflict };
enum class Advice : std::int32_t { kNothing, kRefresh, kError };
enum class GetRequest : std::int32_t { kNothing, kRefresh, kGet };

const char* ageWord(Age age);
const char* requestWord(SendRequest request);
const char* adviceWord(Advice advice);
const char* requestWord(GetRequest request);

// What both lists know of a file; never stored. Times are whole seconds, 0 for a copy that is not
// there.
class EltGW : public Basic {
 public:
  EltGW() = default;
  EltGW(std::string_view path, const FileFacts& own, const std::optional<FileFacts>& server);
  operator char*() const override { return path; }
  // Whether "SEND !" or "GET !" takes it.
  virtual bool chosen() const = 0;
  // The row of a list box whose names are paths without the root and the "\" behind it.
  virtual std::string row(std::size_t root_length) const = 0;
  std::string listedName(std::size_t root_length) const;

  Age age = Age::kSame;
  std::int64_t local_time = 0;
  std::int64_t server_time = 0;
  String path;
  std::int64_t size = 0;
  std::optional<FileFacts> server;  // as it was found; a change since then is noticed
};

// path is the local file's.
class EltGWsend : public EltGW {
 public:
  EltGWsend() = default;
  EltGWsend(std::string_view path, const FileFacts& local, const std::optional<FileFacts>& server);
  bool chosen() const override;
  std::string row(std::size_t root_length) const override;

  SendRequest request = SendRequest::kNothing;
};

// path is the server file's.
class EltGWget : public EltGW {
 public:
  EltGWget() = default;
  EltGWget(std::string_view path, const FileFacts& server, const std::optional<FileFacts>& local);
  bool chosen() const override { return request != GetRequest::kNothing; }
  std::string row(std::size_t root_length) const override;

  bool locked = false;
  Advice advice = Advice::kNothing;
  GetRequest request = GetRequest::kNothing;
};

}  // namespace kesto
