// Which of the IDE's tools opens a file. Plain code.
#pragma once

#include "addon/foundation/string.h"
#include "addon/foundation/tableau.h"

namespace kesto {

class Tool : public Basic {
 public:
  Tool() = default;
  Tool(const char* name, const char* extensions, const char* window_class)
      : name_(name), extensions_(extensions), window_class_(window_class) {}

  const String& name() const { return name_; }
  // Of the editor that the tool opens; may be empty.
  const String& windowClass() const { return window_class_; }
  // Whether the tool is for files of that extension (with its ".") or node type.
  bool handles(const char* extension_or_type) const;

 private:
  String name_;
  String extensions_;  // entries between semicolons, one before the first and after the last
  String window_class_;
};

class ToolTable : public Tableau<Tool> {
 public:
  ToolTable();

  // The name of the first tool for the extension or node type, else that of the text
  // editor; its window class goes to the output (null: not wanted).
  const char* findTool(const char* extension_or_type, String* window_class) const;
};

// The lifecycle fills and clears the slot; null outside a session.
extern ToolTable* toolTable;

}  // namespace kesto
