// What the commands do. Each writes to the session's output and yields the exit code.
#pragma once

#include "cli/request.h"

namespace kesto::cli {

int runFunctions(Session& session, const Request& request);
int runIncludes(Session& session, const Request& request);
int runFind(Session& session, const Request& request);
int runCrossReference(Session& session, const Request& request);
int runHtml(Session& session, const Request& request);
int runClasses(Session& session, const Request& request);
int runStamp(Session& session, const Request& request);
int runKeywords(Session& session, const Request& request);
int runComplete(Session& session, const Request& request);
int runTasks(Session& session, const Request& request);
int runStatus(Session& session, const Request& request);

}  // namespace kesto::cli
