// What is taken out of single files: "functions", "includes", "keywords" and "complete".
#include <cstdio>

#include "addon/completion/completion.h"
#include "addon/completion/keyword_extraction.h"
#include "addon/foundation/text_file.h"
#include "addon/navigation/source_scanner.h"
#include "cli/commands.h"
#include "cli/told_files.h"

namespace kesto::cli {
namespace {

void writeFunctions(Session& session, const std::string& file, const Tableau<Fnc>& functions) {
  Output& output = session.output();
  for (int i = 0; i < functions.count() && output.open(); ++i) {
    const Fnc& found = *functions.at(i);
    const std::string_view of_class = found.className();
    if (output.json()) {
      output.add(Row()
                     .text("file", file)
                     .number("line", found.line())
                     .text("class", of_class)
                     .text("name", found.name()));
    } else {
      std::string name(of_class);
      name += of_class.empty() ? "" : "::";
      output.located(file, found.line(), name += found.name());
    }
  }
}

// Keyword files, one of which may be standard input.
class KeywordFiles : public ToldFiles {
 public:
  explicit KeywordFiles(Session& session) : ToldFiles(session), session_(session) {}
  bool read(const char* path, std::string& text) override {
    if (!session_.readGiven(path, text)) {
      return false;
    }
    takeTextMode(text);
    return true;
  }

 private:
  Session& session_;
};

class Answer : public ReplaceQuestion {
 public:
  explicit Answer(bool may_replace) : may_replace_(may_replace) {}
  bool mayReplace(const char* /*keyword_file*/) override { return may_replace_; }

 private:
  bool may_replace_;
};

int writeKeywordFile(Session& session, const std::string& source, bool may_replace) {
  const std::string core = session.system().corePath(source);
  Answer answer(may_replace);
  ToldFiles files(session);
  switch (extractKeywordFile(files, core.c_str(), answer)) {
    case Extraction::kDone:
      break;
    case Extraction::kKept:
      session.complaints().tell(session.shown(keywordFilePath(core).view()),
                                "holds descriptions that would be lost; --force replaces it");
      break;
    case Extraction::kFailed:
      if (!session.complaints().any()) {
        session.complaints().tell(source, files.status(core.c_str())
                                              ? "its name has no ending, or is a keyword file's"
                                              : session.system().reason());
      }
      break;
  }
  return session.result(true);
}

}  // namespace

int runFunctions(Session& session, const Request& request) {
  bool found = false;
  std::string text;
  Tableau<Fnc> functions;
  for (const std::string& file : request.operands) {
    if (!session.readGiven(file, text)) {
      continue;
    }
    scanFunctions(text, functions);
    if (!request.has("unsorted")) {
      sortFunctions(functions);
    }
    found = found || functions.count() > 0;
    writeFunctions(session, file, functions);
  }
  return session.result(found);
}

int runIncludes(Session& session, const Request& request) {
  bool found = false;
  std::string text;
  Tableau<String> includes;
  Output& output = session.output();
  for (const std::string& file : request.operands) {
    if (!session.readGiven(file, text)) {
      continue;
    }
    scanIncludes(text, includes);
    found = found || includes.count() > 0;
    for (int i = 0; i < includes.count() && output.open(); ++i) {
      const std::string_view name = includes.at(i)->view();
      if (output.json()) {
        output.add(Row().text("file", file).text("include", name));
      } else {
        output.line((request.operands.size() > 1 ? file + ':' : std::string()) +
                    output.shown(name));
      }
    }
  }
  return session.result(found);
}

int runKeywords(Session& session, const Request& request) {
  const std::string& source = request.operands[0];
  if (request.has("write")) {
    return writeKeywordFile(session, source, request.has("force"));
  }
  std::string text;
  if (!session.readGiven(source, text)) {
    return kError;
  }
  takeTextMode(text);
  const std::string keywords = extractKeywords(text);
  Output& output = session.output();
  for (std::string_view rest = keywords; !rest.empty() && output.open();) {
    const std::string_view keyword = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(keyword.size() + 1);
    if (output.json()) {
      output.add(Row().text("keyword", keyword));
    } else {
      output.line(output.shown(keyword));
    }
  }
  return session.result(!keywords.empty());
}

int runComplete(Session& session, const Request& request) {
  const std::string& prefix = request.operands[0];
  Tableau<String> paths;
  for (const std::string& path : request.values("keywords")) {
    paths.append(new String(path.c_str()));
  }
  if (paths.count() == 0) {
    session.complaints().tell({}, "complete needs keyword files: --keywords FILE...");
    return kError;
  }
  KeywordFiles files(session);
  Completion completion;
  completion.load(files, paths);
  const KeywordList& keywords = completion.keywords();
  const KeywordList::Range range = keywords.beginningWith(prefix);
  Output& output = session.output();
  if (request.has("insert")) {
    const CompletionAnswer answer = completion.complete(prefix);
    if (output.json()) {
      output.add(Row().text("insert", answer.text).text("status", answer.status));
    } else if (answer.result != 0) {
      output.line(output.shown(answer.text));
    }
    return session.result(answer.result != 0);
  }
  for (int i = range.first; i <= range.last && output.open(); ++i) {
    const Keyword& keyword = keywords.at(i);
    const std::string description = formattedAlone(keyword.description());
    if (output.json()) {
      output.add(Row().text("keyword", keyword.text()).text("description", description));
    } else {
      output.line(output.shown(keyword.text()) + (description.empty() ? "" : "\t") +
                  output.shown(description));
    }
  }
  return session.result(range.first <= range.last);
}

}  // namespace kesto::cli
