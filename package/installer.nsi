; The installer and, made by it, the uninstaller. Beside LogicLib nothing but the language's
; own instructions, in the ANSI form: both run on Windows 95.
; makensis -DSTAGE=folder -DVERSION=text -DOUT=file; files.lst in the folder names what is in
; it (see make.sh).
;
; The new files are unpacked into a folder of their own first. Then old ones make room, by
; renaming, and the new ones take their places; a failure goes the same way back.

Unicode false
SetCompressor /SOLID lzma
SetDateSave on
SetOverwrite try
RequestExecutionLevel admin
!include LogicLib.nsh

!ifndef ADDON_KEY
  !define ADDON_KEY "SOFTWARE\Borland\Borland C++\5.0\Ide\AddOns\Kestoaob"
!endif
!define WORKBENCH_KEY "Software\Kesto\Workbench"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Kesto"
!define NEW "$INSTDIR\~kesto.new"
!define OLD "$INSTDIR\~kesto.old"
!define MENU "$SMPROGRAMS\Kesto"

Name "Kesto ${VERSION}"
OutFile "${OUT}"
InstallDir "$PROGRAMFILES\Kesto"
InstallDirRegKey HKLM "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "Kesto ${VERSION}"
ShowInstDetails show
ShowUninstDetails show
InstallColors /windows
DirText "Close the IDE and the Workbench first. An older version in the folder is replaced; settings, and examples that you have changed, stay as they are."
Page directory "" "" leaveDirectory
Page instfiles
PageEx un.components
  ComponentText "Kesto will be removed. Whatever you have added or changed in its folder stays, and so do your settings, unless you check them here." "" "Remove:"
  PageCallbacks "" un.showComponents
PageExEnd
UninstPage instfiles

Var Lines      ; the open list
Var Kind       ; of its line
Var Name
Var High       ; time of the installed files
Var Low
Var Upgrade    ; "yes" where the folder has an installation, "cut" where one was cut short
Var Trouble    ; why it cannot be done; or empty
Var OldPath    ; what was registered
Var OldVersion
Var Begun      ; what has to be undone: "", "registered" or "placed"

!macro ForLines LIST
  FileOpen $Lines "${LIST}" r
  ${Do}
    ClearErrors
    FileRead $Lines $Name
    ${If} ${Errors}
      ${ExitDo}
    ${EndIf}
    StrCpy $Kind $Name 1
    StrCpy $Name $Name -2 2
!macroend
!macro NextLine
  ${Loop}
  FileClose $Lines
!macroend

!macro Say TEXT
  SetDetailsPrint both
  DetailPrint "${TEXT}"
  SetDetailsPrint none
!macroend
!define Say "!insertmacro Say"

!macro Functions UN
; $0 becomes "yes" when the file is as it was installed, told by its time: that of the
; module. Where the file system shifts times with the seasons, it shifts both.
Function ${UN}isUntouched
  StrCpy $0 ""
  ClearErrors
  GetFileTime "$INSTDIR\$Name" $1 $2
  ${IfNot} ${Errors}
  ${AndIf} "$1:$2" == "$High:$Low"
    StrCpy $0 "yes"
  ${EndIf}
FunctionEnd

Function ${UN}noteTime
  StrCpy $High "none"
  ${If} ${FileExists} "$INSTDIR\Kestoaob.dll"
    GetFileTime "$INSTDIR\Kestoaob.dll" $High $Low
  ${EndIf}
FunctionEnd

; Trouble when the program file $Name is one that nobody can replace now.
Function ${UN}checkFree
  ClearErrors
  FileOpen $0 "$INSTDIR\$Name" a
  ${If} ${Errors}
    StrCpy $Trouble "$INSTDIR\$Name is in use, or may not be changed.$\r$\n$\r$\nClose the IDE, the Workbench and the help, and try again. Nothing has been changed."
  ${Else}
    FileClose $0
  ${EndIf}
FunctionEnd
!macroend
!insertmacro Functions ""
!insertmacro Functions "un."

; ---------------------------------------------------------------------------
; Installing

Function .onInit
  SetShellVarContext all
  InitPluginsDir
  File "/oname=$PLUGINSDIR\files.lst" "${STAGE}\files.lst"
FunctionEnd

Function check
  StrCpy $0 $INSTDIR "" -1
  ${If} $0 == "\"
    StrCpy $INSTDIR $INSTDIR -1
  ${EndIf}
  StrCpy $Trouble ""
  StrCpy $Upgrade ""
  ReadRegStr $0 HKLM "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $0 != ""
  ${AndIf} ${FileExists} "$0\uninstall.exe"
    ${If} $0 == $INSTDIR
      StrCpy $Upgrade "yes"
    ${Else}
      StrCpy $Trouble "Kesto is installed in $0.$\r$\n$\r$\nInstall it in that folder, or remove it there first."
      Return
    ${EndIf}
  ${EndIf}
  ; Where one was cut short, what it had placed is its own.
  ${If} ${FileExists} "${NEW}\*.*"
    StrCpy $Upgrade "cut"
  ${EndIf}
  !insertmacro ForLines "$PLUGINSDIR\files.lst"
    ${If} $Trouble == ""
    ${AndIf} $Kind != "D"
    ${AndIf} $Kind != "R"
    ${AndIf} ${FileExists} "$INSTDIR\$Name"
      ${If} $Upgrade == ""
        StrCpy $Trouble "There is already a file $INSTDIR\$Name, and it is not from an installation of Kesto.$\r$\n$\r$\nChoose another folder."
      ${ElseIf} $Kind == "P"
        Call checkFree
      ${EndIf}
    ${EndIf}
  !insertmacro NextLine
FunctionEnd

Function leaveDirectory
  Call check
  ${If} $Trouble != ""
    MessageBox MB_OK|MB_ICONEXCLAMATION "$Trouble"
    Abort
  ${EndIf}
FunctionEnd

; Ends the installation with $Trouble, and all as it was.
Function fail
  Call undo
  ${Say} "$Trouble"
  MessageBox MB_OK|MB_ICONSTOP "$Trouble" /SD IDOK
  SetErrorLevel 2
  Abort "Kesto has not been installed."
FunctionEnd

; Files that cannot be unpacked end the section from within.
Function .onInstFailed
  Call undo
FunctionEnd

Function giveBack ; what the lines of a list had before
  ${If} ${FileExists} "${OLD}\$Name"
    Rename "${OLD}\$Name" "$INSTDIR\$Name"
  ${EndIf}
FunctionEnd

Function undo
  SetDetailsPrint none
  SetOutPath $TEMP
  ${If} $Begun == "placed"
    !insertmacro ForLines "$PLUGINSDIR\files.lst"
      ${If} $Kind != "D"
      ${AndIf} $Kind != "R"
        ${IfNot} ${FileExists} "${NEW}\$Name"
          Delete "$INSTDIR\$Name"
        ${EndIf}
        Call giveBack
      ${EndIf}
    !insertmacro NextLine
    !insertmacro ForLines "$PLUGINSDIR\old.lst"
      ${If} $Kind == "R"
        RMDir "${OLD}\$Name"
      ${ElseIf} $Kind != "D"
        Call giveBack
      ${EndIf}
    !insertmacro NextLine
    !insertmacro ForLines "$PLUGINSDIR\files.lst"
      ${If} $Kind == "R"
        RMDir "${OLD}\$Name"
        RMDir "$INSTDIR\$Name"
      ${EndIf}
    !insertmacro NextLine
    RMDir "${OLD}"
  ${EndIf}
  ${If} $Begun != ""
    RMDir /r "${NEW}"
    RMDir "$INSTDIR"
    ${If} $OldPath != ""
      WriteRegStr HKLM "${ADDON_KEY}" "Path" "$OldPath"
    ${Else}
      DeleteRegValue HKLM "${ADDON_KEY}" "Path"
      Call dropEmptyKeys
    ${EndIf}
    ${If} $Upgrade == ""
      DeleteRegKey HKLM "${UNINSTALL_KEY}"
    ${EndIf}
  ${EndIf}
  StrCpy $Begun ""
FunctionEnd

!macro DropEmptyKeys UN
Function ${UN}dropEmptyKeys
  DeleteRegKey /ifempty HKLM "${ADDON_KEY}"
  DeleteRegKey /ifempty HKLM "SOFTWARE\Borland\Borland C++\5.0\Ide\AddOns"
  DeleteRegKey /ifempty HKLM "SOFTWARE\Borland\Borland C++\5.0\Ide"
  DeleteRegKey /ifempty HKLM "SOFTWARE\Borland\Borland C++\5.0"
  DeleteRegKey /ifempty HKLM "SOFTWARE\Borland\Borland C++"
  DeleteRegKey /ifempty HKLM "SOFTWARE\Borland"
FunctionEnd
!macroend
!insertmacro DropEmptyKeys ""
!insertmacro DropEmptyKeys "un."

; A file of the older version that is none of this one's makes room too.
Function setAside
  !insertmacro ForLines "$PLUGINSDIR\old.lst"
    ${If} $Kind == "D"
      CreateDirectory "${OLD}\$Name"
    ${ElseIf} $Kind != "R"
    ${AndIfNot} ${FileExists} "${NEW}\$Name"
    ${AndIf} ${FileExists} "$INSTDIR\$Name"
      Call isUntouched
      ${If} $0 == "yes"
        Rename "$INSTDIR\$Name" "${OLD}\$Name"
        ${Say} "Removed: $Name"
      ${Else}
        ${Say} "Kept, as it has been changed: $Name"
      ${EndIf}
    ${EndIf}
  !insertmacro NextLine
FunctionEnd

Function place
  !insertmacro ForLines "$PLUGINSDIR\files.lst"
    ${If} $Trouble != ""
      ${Continue}
    ${EndIf}
    ${If} $Kind == "D"
      CreateDirectory "${OLD}\$Name"
      CreateDirectory "$INSTDIR\$Name"
      ${Continue}
    ${ElseIf} $Kind == "R"
      ${Continue}
    ${EndIf}
    ${If} ${FileExists} "$INSTDIR\$Name"
      Call isUntouched
      ${If} $Kind == "E"
      ${AndIf} $0 == ""
        ${Say} "Kept, as it has been changed: $Name"
        ${Continue}
      ${EndIf}
      Rename "$INSTDIR\$Name" "${OLD}\$Name"
    ${EndIf}
    ClearErrors
    Rename "${NEW}\$Name" "$INSTDIR\$Name"
    ${If} ${Errors}
      StrCpy $Trouble "$INSTDIR\$Name cannot be put in its place. The folder is as it was."
    ${Else}
      ${Say} "Installed: $Name"
    ${EndIf}
  !insertmacro NextLine
FunctionEnd

; What had a program file's name and was not installed with the others is a person's. It
; stays, under a name that is free.
Function keepBeside
  !insertmacro ForLines "$PLUGINSDIR\files.lst"
    ${If} $Kind == "P"
    ${AndIf} $Name != "uninstall.exe"
    ${AndIf} ${FileExists} "${OLD}\$Name"
      GetFileTime "${OLD}\$Name" $1 $2
      ${If} "$1:$2" != "$High:$Low"
        StrCpy $0 "$Name.old"
        ${While} ${FileExists} "$INSTDIR\$0"
          StrCpy $0 "$0.old"
        ${EndWhile}
        Rename "${OLD}\$Name" "$INSTDIR\$0"
        ${Say} "Kept, as it was not of Kesto: $0"
      ${EndIf}
    ${EndIf}
  !insertmacro NextLine
FunctionEnd

Function register
  ${Say} "Registered for the IDE, below HKEY_LOCAL_MACHINE:"
  ${Say} "  ${ADDON_KEY}"
  ${Say} "  Path = $INSTDIR\Kestoaob.dll"
  ClearErrors
  WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "Kesto ${VERSION}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoRepair" 1
  ${If} ${Errors}
    StrCpy $Trouble "The registry does not take the entry for Add/Remove Programs. The folder is as it was."
  ${EndIf}
FunctionEnd

Function fillMenu
  SetOutPath "$INSTDIR"
  CreateDirectory "${MENU}"
  CreateShortCut "${MENU}\Kesto Workbench.lnk" "$INSTDIR\workbench.exe" '"$INSTDIR\Examples\shapes"'
  CreateShortCut "${MENU}\Kesto Help.lnk" "$INSTDIR\Kestoaob.hlp"
  CreateShortCut "${MENU}\Read me.lnk" "$INSTDIR\README.TXT"
  CreateShortCut "${MENU}\Uninstall Kesto.lnk" "$INSTDIR\uninstall.exe"
  ${Say} "In the Start menu, below Programs: Kesto"
FunctionEnd

Section
  SetDetailsPrint none
  Call check
  ${If} $Trouble != ""
    Call fail
  ${EndIf}
  Call noteTime
  ReadRegStr $OldPath HKLM "${ADDON_KEY}" "Path"
  ReadRegStr $OldVersion HKLM "${UNINSTALL_KEY}" "DisplayVersion"
  CopyFiles /SILENT "$INSTDIR\files.lst" "$PLUGINSDIR\old.lst"

  ; Before anything is written: where this is refused, all else would be in vain.
  ClearErrors
  WriteRegStr HKLM "${ADDON_KEY}" "Path" "$INSTDIR\Kestoaob.dll"
  ${If} ${Errors}
    StrCpy $Trouble "The registry does not take the entry by which the IDE finds Kesto, below HKEY_LOCAL_MACHINE.$\r$\n$\r$\nInstall as an administrator. Nothing has been installed."
    Call fail
  ${EndIf}
  StrCpy $Begun "registered"

  RMDir /r "${NEW}"
  RMDir /r "${OLD}"
  SetOutPath "${NEW}"
  ClearErrors
  File /r "${STAGE}\*.*"
  WriteUninstaller "${NEW}\uninstall.exe"
  ${If} ${Errors}
    StrCpy $Trouble "The files cannot be written to $INSTDIR. Nothing has been installed."
    Call fail
  ${EndIf}
  SetOutPath $TEMP

  StrCpy $Begun "placed"
  CreateDirectory "${OLD}"
  ${If} $Upgrade != ""
    ${Say} "Replacing Kesto $OldVersion"
    Call setAside
  ${EndIf}
  Call place
  ${If} $Trouble == ""
    Call register
  ${EndIf}
  ${If} $Trouble != ""
    Call fail
  ${EndIf}
  StrCpy $Begun ""

  ${If} $Upgrade == "yes"
  ${AndIf} $High != "none"
    Call keepBeside
  ${EndIf}
  RMDir /r "${NEW}"
  RMDir /r "${OLD}"
  !insertmacro ForLines "$PLUGINSDIR\old.lst"
    ${If} $Kind == "R"
      RMDir "$INSTDIR\$Name"
    ${EndIf}
  !insertmacro NextLine
  Call fillMenu
  ${Say} "Kesto ${VERSION} is installed in"
  ${Say} "  $INSTDIR"
  ${Say} "No setting has been touched."
SectionEnd

; ---------------------------------------------------------------------------
; Taking it away

Section "un.Kesto"
  SectionIn RO
  SetDetailsPrint none
  SetShellVarContext all
  InitPluginsDir
  File "/oname=$PLUGINSDIR\files.lst" "${STAGE}\files.lst"
  StrCpy $Trouble ""
  !insertmacro ForLines "$PLUGINSDIR\files.lst"
    ${If} $Kind == "P"
    ${AndIf} $Name != "uninstall.exe"
    ${AndIf} $Trouble == ""
    ${AndIf} ${FileExists} "$INSTDIR\$Name"
      Call un.checkFree
    ${EndIf}
  !insertmacro NextLine
  ${If} $Trouble != ""
    ${Say} "$Trouble"
    MessageBox MB_OK|MB_ICONSTOP "$Trouble" /SD IDOK
    SetErrorLevel 2
    Abort "Kesto has not been removed."
  ${EndIf}

  Call un.noteTime
  !insertmacro ForLines "$PLUGINSDIR\files.lst"
    ${If} $Kind == "E"
    ${AndIf} ${FileExists} "$INSTDIR\$Name"
      Call un.isUntouched
      ${If} $0 == ""
        ${Say} "Kept, as it has been changed: $Name"
        ${Continue}
      ${EndIf}
    ${EndIf}
    ${If} $Kind == "P"
    ${OrIf} $Kind == "E"
      Delete "$INSTDIR\$Name"
      ${Say} "Removed: $Name"
    ${ElseIf} $Kind == "R"
      RMDir "$INSTDIR\$Name"
    ${EndIf}
  !insertmacro NextLine
  ; What the viewer of the system keeps beside a help file.
  Delete "$INSTDIR\Kestoaob.GID"
  Delete "$INSTDIR\Kestoaob.FTS"
  SetOutPath $TEMP
  RMDir "$INSTDIR"

  Delete "${MENU}\Kesto Workbench.lnk"
  Delete "${MENU}\Kesto Help.lnk"
  Delete "${MENU}\Read me.lnk"
  Delete "${MENU}\Uninstall Kesto.lnk"
  RMDir "${MENU}"
  ReadRegStr $0 HKLM "${ADDON_KEY}" "Path"
  ${If} $0 == "$INSTDIR\Kestoaob.dll"
    DeleteRegValue HKLM "${ADDON_KEY}" "Path"
  ${EndIf}
  Call un.dropEmptyKeys
  ReadRegStr $0 HKLM "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $0 == $INSTDIR
    DeleteRegKey HKLM "${UNINSTALL_KEY}"
  ${EndIf}
  ${Say} "Removed: the entries in the Start menu and in the registry"
SectionEnd

Section /o "un.Settings" settings
  DeleteRegKey HKLM "${ADDON_KEY}"
  Call un.dropEmptyKeys
  DeleteRegKey HKCU "${WORKBENCH_KEY}"
  DeleteRegKey /ifempty HKCU "Software\Kesto"
  ${Say} "Removed: the settings"
SectionEnd

; Nothing is to be told of space here.
Function un.showComponents
  FindWindow $0 "#32770" "" $HWNDPARENT
  GetDlgItem $0 $0 1023
  ShowWindow $0 0
FunctionEnd

!include FileFunc.nsh
Function un.onInit
  SetShellVarContext all
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/SETTINGS" $1
  ${IfNot} ${Errors}
    SectionSetFlags ${settings} 1
  ${EndIf}
FunctionEnd
