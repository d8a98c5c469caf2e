// The settings of groupware that are the user's, in the settings store; the server
// directory is each project's. One object, created and destroyed by the lifecycle;
// user-interface thread only.
#pragma once

#include "addon/foundation/string.h"

namespace kesto {

class GroupwareSettings {
 public:
  // Reads section "Groupware".
  GroupwareSettings();
  // Writes it back.
  ~GroupwareSettings();
  GroupwareSettings(const GroupwareSettings&) = delete;
  GroupwareSettings& operator=(const GroupwareSettings&) = delete;

  bool enabled() const { return enabled_ != 0; }
  bool mailOnGet() const { return mail_on_get_ != 0; }
  bool mailOnSend() const { return mail_on_send_ != 0; }
  // Masks of the files that are exchanged, with ";" between them.
  const String& filters() const { return filters_; }

 private:
  int enabled_;
  int mail_on_get_;
  int mail_on_send_;
  String filters_;
};

// The lifecycle fills and clears the slot; null outside a session.
extern GroupwareSettings* groupwareSettings;

}  // namespace kesto
