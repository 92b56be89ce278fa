; The installer for Windows: for the user who runs it, without an administrator's rights. tools/windows/package gives
; VERSION, STAGE (the folder with what is installed) and OUTPUT. Orlo reads no command line, so no file type leads to it.

; As the programs: a Wine or Windows without 32-bit parts runs it too.
Target amd64-unicode
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Orlo"

Name "Orlo"
OutFile "${OUTPUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Orlo"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
SetCompressor /SOLID lzma
ManifestDPIAware true
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Orlo"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Installer of Orlo"
VIAddVersionKey LegalCopyright "The Orlo developers"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\orlo.exe"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "${STAGE}\Licences\Orlo.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A program that runs holds its file; told before anything is changed.
!macro StopWhereItRuns
  ${If} ${FileExists} "$INSTDIR\orlo.exe"
    ClearErrors
    FileOpen $0 "$INSTDIR\orlo.exe" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONSTOP "Orlo is running, or may not be changed here. Close it and try again." /SD IDOK
      SetErrorLevel 2
      Quit
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend

Section
  !insertmacro StopWhereItRuns
  SetOutPath "$INSTDIR"
  File "${STAGE}\orlo.exe"
  File "${STAGE}\orlo-console.exe"
  File "${STAGE}\Read me.txt"
  ; The manual and the licences are renewed whole.
  RMDir /r "$INSTDIR\Help"
  RMDir /r "$INSTDIR\Licences"
  File /r "${STAGE}\Help"
  File /r "${STAGE}\Licences"
  ; Rule files are the user's from the first moment.
  SetOverwrite off
  File "${STAGE}\*.CFG"
  SetOverwrite on
  WriteUninstaller "$INSTDIR\Uninstall.exe"

  CreateDirectory "$SMPROGRAMS\Orlo"
  CreateShortCut "$SMPROGRAMS\Orlo\Orlo.lnk" "$INSTDIR\orlo.exe"
  CreateShortCut "$SMPROGRAMS\Orlo\Manual.lnk" "$INSTDIR\Help\index.html"
  CreateShortCut "$SMPROGRAMS\Orlo\Uninstall.lnk" "$INSTDIR\Uninstall.exe"

  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Orlo"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\orlo.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "The Orlo developers"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  IntFmt $0 "0x%08X" $0
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" "$0"
SectionEnd

Section Uninstall
  !insertmacro StopWhereItRuns
  Delete "$INSTDIR\orlo.exe"
  Delete "$INSTDIR\orlo-console.exe"
  Delete "$INSTDIR\Read me.txt"
  RMDir /r "$INSTDIR\Help"
  RMDir /r "$INSTDIR\Licences"
  Delete "$INSTDIR\AFDCache.dat" ; read anew from the simulator at the next need
  Delete "$INSTDIR\Uninstall.exe"
  Delete "$SMPROGRAMS\Orlo\Orlo.lnk"
  Delete "$SMPROGRAMS\Orlo\Manual.lnk"
  Delete "$SMPROGRAMS\Orlo\Uninstall.lnk"
  RMDir "$SMPROGRAMS\Orlo"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  RMDir "$INSTDIR" ; where nothing is left in it
  ${If} ${FileExists} "$INSTDIR\*.*"
    MessageBox MB_OK|MB_ICONINFORMATION "Orlo is removed. Your rule files, and what else you or Orlo have put there, stay in$\r$\n$INSTDIR$\r$\n$\r$\nYour settings stay in the registry, and copies of files that Orlo has kept in$\r$\n$LOCALAPPDATA\Orlo State$\r$\n$\r$\nDelete them where you don't need them any more." /SD IDOK
  ${EndIf}
SectionEnd
