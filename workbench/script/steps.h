// The handlers of the verbs, by the file that holds them.
#pragma once

#include "workbench/script/step.h"

namespace workbench {

// frame_steps.cpp: files and the frame
StepResult stepOpen(StepTry& step);
StepResult stepClose(StepTry& step);
StepResult stepEdit(StepTry& step);
StepResult stepMake(StepTry& step);
StepResult stepSave(StepTry& step);
StepResult stepType(StepTry& step);
StepResult stepCaret(StepTry& step);
StepResult stepSelect(StepTry& step);
StepResult stepMinimize(StepTry& step);
StepResult stepMaximize(StepTry& step);
StepResult stepRestore(StepTry& step);
StepResult stepActivate(StepTry& step);
StepResult stepOtherIde(StepTry& step);
StepResult stepDeactivate(StepTry& step);
StepResult stepDocument(StepTry& step);

// session_steps.cpp: how the program ends
StepResult stepCloseFrame(StepTry& step);
StepResult stepEndSession(StepTry& step);

// clipboard_steps.cpp
StepResult stepClipboard(StepTry& step);
StepResult dumpClipboard(StepTry& step);

// project_steps.cpp: the project's tree and options, the message window
StepResult stepNewProject(StepTry& step);
StepResult stepSaveProject(StepTry& step);
StepResult stepBuildCommand(StepTry& step);
StepResult stepOption(StepTry& step);
StepResult stepAddNode(StepTry& step);
StepResult stepRenameNode(StepTry& step);
StepResult stepRemoveNode(StepTry& step);
StepResult stepDescribeNode(StepTry& step);
StepResult stepNodePath(StepTry& step);
StepResult stepMessageOpen(StepTry& step);
StepResult dumpProject(StepTry& step);
StepResult dumpMessages(StepTry& step);

// input_steps.cpp: real keys and clicks
StepResult stepKey(StepTry& step);
StepResult stepClickTitle(StepTry& step);
StepResult stepExpectButtons(StepTry& step);
StepResult stepDoubleClickTitle(StepTry& step);
StepResult stepRightClickTitle(StepTry& step);
StepResult stepClickAt(StepTry& step);
StepResult stepClickCaption(StepTry& step);

// menu_steps.cpp: menus and the add-on's bar
StepResult stepChoose(StepTry& step);
StepResult stepCommand(StepTry& step);
StepResult stepTick(StepTry& step);

// dialog_steps.cpp: boxes and dialogs
StepResult stepDialog(StepTry& step);
StepResult stepAnswer(StepTry& step);
StepResult stepSet(StepTry& step);
StepResult stepCheck(StepTry& step);
StepResult stepSelectItem(StepTry& step);
StepResult stepPress(StepTry& step);

// dialog_dump.cpp: the controls of a dialog
StepResult dumpDialog(StepTry& step);

// help_steps.cpp: the help viewer
StepResult stepExpectHelp(StepTry& step);

// repeat_steps.cpp: what is done several times
StepResult stepRepeat(StepTry& step);
StepResult stepEndRepeat(StepTry& step);

// event_steps.cpp: what has happened
StepResult stepWait(StepTry& step);
StepResult stepWaitFile(StepTry& step);
StepResult stepExpect(StepTry& step);
StepResult expectLatest(StepTry& step, const EventQuery& query);
StepResult stepExpectNot(StepTry& step);
StepResult stepMark(StepTry& step);
StepResult stepEcho(StepTry& step);
StepResult stepQuit(StepTry& step);

// dump_steps.cpp: what is there now
StepResult stepDump(StepTry& step);

// system_steps.cpp: settings, pictures, handles, memory
StepResult stepRegistrySet(StepTry& step);
StepResult stepRegistryDelete(StepTry& step);
StepResult stepExpectRegistry(StepTry& step);
StepResult stepScreenshot(StepTry& step);
StepResult stepHandles(StepTry& step);
StepResult stepHold(StepTry& step);
StepResult stepMemory(StepTry& step);

}  // namespace workbench
