// The IDE's own names: service identifiers, window classes and menu commands.
#pragma once

#include <windows.h>

namespace ideapi {

// All services share the tail of their identifiers.
constexpr GUID serviceId(unsigned long first) {
  return GUID{first, 0x4B4B, 0x11CF, {0x9D, 0x40, 0x44, 0x45, 0x53, 0x54, 0x00, 0x00}};
}

inline constexpr GUID kEditorService = serviceId(0x707240D0);
inline constexpr GUID kMessageService = serviceId(0x707240C0);
inline constexpr GUID kStatusLineService = serviceId(0x707240C7);
inline constexpr GUID kOptionsService = serviceId(0x707240CC);
inline constexpr GUID kMakeService = serviceId(0x707240CD);
inline constexpr GUID kProjectService = serviceId(0x707240D4);
inline constexpr GUID kProjectSaveService = serviceId(0x707240ED);
inline constexpr GUID kToolService = serviceId(0x707240D9);

// The standard IUnknown identifier.
inline constexpr GUID kUnknown{
    0x00000000, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

// What the tools of add-ons answer for.
inline constexpr GUID kToolImplementor{
    0x94D38B60, 0xE488, 0x11CE, {0xBA, 0x8F, 0x00, 0x00, 0xC0, 0xF4, 0xA3, 0x55}};

inline constexpr char kFrameClass[] = "CPPFRAME";
inline constexpr char kMdiClientClass[] = "MDIClient";
inline constexpr char kEditorClass[] = "BCW5Editor";
inline constexpr char kEditorTextClass[] = "EditWindClass";
inline constexpr char kProjectClass[] = "BCW5Project";
inline constexpr char kMessageClass[] = "BCW5Message";
inline constexpr char kOwlWindowClass[] = "OWL_Window";
inline constexpr char kNoteTabClass[] = "OWL_NoteTab";
inline constexpr char kMessageViewerClass[] = "MsgViewer";
// A child of the frame, with the status line in it. What the IDE itself calls the class is
// not known here; this is the Workbench's name for it.
inline constexpr char kStatusClass[] = "BCW5Status";

// Menu commands, sent as WM_COMMAND to the frame unless noted.
inline constexpr int kCommandSaveAll = 13104;
inline constexpr int kCommandShowProject = 13251;
inline constexpr int kCommandShowMessages = 13252;
inline constexpr int kCommandOptions = 13492;
inline constexpr int kCommandClearMessages = 1722;  // to the message viewer

// The one entry of an add-on: the root interface to start, 0 to shut down.
inline constexpr char kAddonEntryName[] = "BcwAddOnEntry";
using AddonEntry = void(__cdecl*)(int ide);

}  // namespace ideapi
