// A MAPI that sends nothing. What MAPISendMail is given goes into mapi.txt of the folder
// that KESTO_MAIL names (a path of Unix), whole, and escaped so that each byte shows. It
// answers the code in KESTO_MAPI_ANSWER, 0 unless there is one; where its dialog is asked
// for, it shows a box first, and Cancel answers that the user aborted.
#include <windows.h>

#include <mapi.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

std::string variable(const char* name) {
  char value[MAX_PATH] = "";
  GetEnvironmentVariableA(name, value, sizeof value);
  return value;
}

std::string format(const char* form, ...) {
  char text[200] = "";
  va_list arguments;
  va_start(arguments, form);
  vsnprintf(text, sizeof text, form, arguments);
  va_end(arguments);
  return text;
}

std::string quoted(const char* text) {
  if (text == nullptr) {
    return "none";
  }
  std::string result = "\"";
  for (; *text != '\0'; ++text) {
    if (*text == '\n') {
      result += text[1] != '\0' ? "\\n\"\n  \"" : "\\n";
    } else if (*text == '"' || *text == '\\') {
      result += {'\\', *text};
    } else if (*text < ' ' || *text == '\x7F') {
      result += format("\\x%02X", static_cast<unsigned char>(*text));
    } else {
      result += *text;
    }
  }
  return result + '"';
}

std::string given(const void* pointer) {
  return pointer != nullptr ? "given" : "none";
}

std::string windowName(ULONG_PTR handle) {
  char name[40] = "";
  GetClassNameA(reinterpret_cast<HWND>(handle), name, sizeof name);
  return handle == 0 ? "none" : quoted(name);
}

std::string describe(const MapiRecipDesc& recipient) {
  return format("recipient class %lu, name ", recipient.ulRecipClass) + quoted(recipient.lpszName) +
         ", address " + quoted(recipient.lpszAddress) +
         format(", entry %lu ", recipient.ulEIDSize) + given(recipient.lpEntryID) +
         format(", reserved %lu\n", recipient.ulReserved);
}

std::string describe(const MapiMessage& message) {
  std::string text = format("message reserved %lu, flags %lu, type ", message.ulReserved,
                            static_cast<unsigned long>(message.flFlags)) +
                     quoted(message.lpszMessageType) + ", date " +
                     quoted(message.lpszDateReceived) + ", conversation " +
                     quoted(message.lpszConversationID) + ", originator " +
                     given(message.lpOriginator) + format(", files %lu ", message.nFileCount) +
                     given(message.lpFiles) + format(", recipients %lu ", message.nRecipCount) +
                     given(message.lpRecips) + "\n";
  for (ULONG i = 0; i < message.nRecipCount; ++i) {
    text += describe(message.lpRecips[i]);
  }
  return text + "subject " + quoted(message.lpszSubject) + "\nnote\n  " +
         quoted(message.lpszNoteText) + "\n";
}

void note(const std::string& text) {
  const std::string path = "Z:" + variable("KESTO_MAIL") + "/mapi.txt";
  FILE* const file = fopen(path.c_str(), "ab");
  if (file != nullptr) {
    fwrite(text.data(), 1, text.size(), file);
    fclose(file);
  }
}

}  // namespace

extern "C" ULONG WINAPI MAPISendMail(LHANDLE session, ULONG_PTR window, lpMapiMessage message,
                                     FLAGS flags, ULONG reserved) {
  note(format("send session %lu, flags %lu, reserved %lu, window ",
              static_cast<unsigned long>(session), static_cast<unsigned long>(flags), reserved) +
       windowName(window) + "\n" + describe(*message));
  if ((flags & MAPI_DIALOG) != 0 &&
      MessageBoxA(reinterpret_cast<HWND>(window), message->lpszSubject, "Mail", MB_OKCANCEL) !=
          IDOK) {
    return MAPI_USER_ABORT;
  }
  return strtoul(variable("KESTO_MAPI_ANSWER").c_str(), nullptr, 10);
}
