// What the services work on; all of it outlives them.
#pragma once

namespace workbench {

class Editing;
class EditorSet;
class EventLog;
class LiveObjects;
class MainWindow;
class MessageStore;
class Paths;
class Project;
class Projects;

struct ServiceContext {
  EventLog& log;
  MainWindow& window;
  Paths& paths;
  Editing& editing;
  Projects& projects;
  EditorSet& editors;
  Project& project;
  MessageStore& messages;
  LiveObjects& live;
};

}  // namespace workbench
