// What the services work on; all of it outlives them.
#pragma once

namespace workbench {

class EditorSet;
class LiveObjects;
class MessageStore;
class Project;
class Workbench;

struct ServiceContext {
  Workbench& workbench;
  EditorSet& editors;
  Project& project;
  MessageStore& messages;
  LiveObjects& live;
};

}  // namespace workbench
