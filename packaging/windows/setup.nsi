; The installer for one user: into a folder that its user can write to, because the journal lies
; beside the program. Given from outside: VERSION, FILES, ICON,
; PICTURE (beside its first and last page, 164 x 314), OUTPUT.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Corvana"

Name "Corvana"
OutFile "${OUTPUT}"
BrandingText "Corvana ${VERSION}"
InstallDir "$LOCALAPPDATA\Programs\Corvana"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Corvana"
VIAddVersionKey "FileDescription" "Installs Corvana"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "The Corvana developers"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_UNWELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_WELCOMEPAGE_TEXT "Corvana is installed for you alone, into a folder of your own: your \
  journal lies in it beside the program.$\r$\n$\r$\nA journal that is there already is kept as it is."
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\Corvana.exe"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A running program keeps its file from being written.
!macro requireClosed
  ${Do}
    ${IfNot} ${FileExists} "$INSTDIR\Corvana.exe"
      ${Break}
    ${EndIf}
    ClearErrors
    FileOpen $0 "$INSTDIR\Corvana.exe" a
    ${IfNot} ${Errors}
      FileClose $0
      ${Break}
    ${EndIf}
    ${If} ${Silent}
      SetErrorLevel 3
      Abort
    ${EndIf}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
      "Corvana is running. Please close it, then retry." IDRETRY +2
    Abort
  ${Loop}
!macroend

Section "Corvana"
  !insertmacro requireClosed
  SetOutPath "$INSTDIR"
  ClearErrors
  File "${FILES}\Corvana.exe"
  File "${FILES}\Corvana.hlp"
  File "${FILES}\LICENSE.txt"
  ; A Corvana.mdb that is there is the user's journal. The new one comes whole or not at all.
  ${IfNot} ${FileExists} "$INSTDIR\Corvana.mdb"
    File "/oname=Corvana.mdb.new" "${FILES}\Corvana.mdb"
    Rename "$INSTDIR\Corvana.mdb.new" "$INSTDIR\Corvana.mdb"
  ${EndIf}
  WriteUninstaller "$INSTDIR\uninstall.exe"
  ${If} ${Errors}
    MessageBox MB_ICONSTOP "Corvana can't be installed in $INSTDIR: please choose a folder in \
      which you may write, and make sure that there is room." /SD IDOK
    SetErrorLevel 2
    Abort
  ${EndIf}

  CreateShortcut "$SMPROGRAMS\Corvana.lnk" "$INSTDIR\Corvana.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Corvana"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\Corvana.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "The Corvana developers"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

Section "Uninstall"
  !insertmacro requireClosed
  Delete "$INSTDIR\Corvana.exe"
  Delete "$INSTDIR\Corvana.hlp"
  Delete "$INSTDIR\LICENSE.txt"
  Delete "$INSTDIR\uninstall.exe"
  Delete "$SMPROGRAMS\Corvana.lnk"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  ; What the program remembers belongs to the journal: without it a later installation would take
  ; the journal for a new one and move its sample dates.
  ${If} ${FileExists} "$INSTDIR\Corvana.mdb"
    MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 \
      "Remove your journal too?$\r$\n$\r$\n$INSTDIR\Corvana.mdb holds everything that you have \
      recorded. It can't be brought back but from the folder backups in $INSTDIR, which stays." \
      /SD IDNO IDNO keep
    Delete "$INSTDIR\Corvana.mdb"
    Delete "$INSTDIR\Corvana.mdb-journal"
    Delete "$INSTDIR\Corvana.ini"
    keep:
  ${EndIf}
  RMDir "$INSTDIR" ; only if nothing is left in it
SectionEnd
