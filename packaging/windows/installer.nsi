; The installer, per machine.   makensis -DVERSION=0.1.0 -DDIST=dist/windows -DOWNED=files.nsh -DOUT=Setup.exe installer.nsi
;   /S           without a question        /AUTOSTART   starts the program when it is done        /D=FOLDER   elsewhere
; OWNED holds a line "Delete" or "RMDir" for everything in DIST, so that uninstalling removes that and nothing else: a
; camera library that somebody put beside the program stays.
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel admin
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh

!define NAME "Field Calibrator"
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\FieldCalibrator"
!define PROGRAM "$INSTDIR\field-calibrator.exe"

Name "${NAME}"
OutFile "${OUT}"
InstallDir "$PROGRAMFILES64\${NAME}"
InstallDirRegKey HKLM "${ENTRY}" "InstallLocation"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${NAME} Setup"
VIAddVersionKey "LegalCopyright" ""

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "${PROGRAM}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "Arabic"
!insertmacro MUI_LANGUAGE "Czech"
!insertmacro MUI_LANGUAGE "Danish"
!insertmacro MUI_LANGUAGE "Dutch"
!insertmacro MUI_LANGUAGE "Finnish"
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "Greek"
!insertmacro MUI_LANGUAGE "Hebrew"
!insertmacro MUI_LANGUAGE "Italian"
!insertmacro MUI_LANGUAGE "Japanese"
!insertmacro MUI_LANGUAGE "Korean"
!insertmacro MUI_LANGUAGE "Norwegian"
!insertmacro MUI_LANGUAGE "Polish"
!insertmacro MUI_LANGUAGE "Portuguese"
!insertmacro MUI_LANGUAGE "PortugueseBR"
!insertmacro MUI_LANGUAGE "Russian"
!insertmacro MUI_LANGUAGE "SimpChinese"
!insertmacro MUI_LANGUAGE "Slovak"
!insertmacro MUI_LANGUAGE "Spanish"
!insertmacro MUI_LANGUAGE "Swedish"
!insertmacro MUI_LANGUAGE "Thai"
!insertmacro MUI_LANGUAGE "TradChinese"
!insertmacro MUI_LANGUAGE "Turkish"

Function .onInit
    SetShellVarContext all
FunctionEnd

!macro noteIfRunning FILE
    ${If} ${FileExists} "$INSTDIR\${FILE}"
        ClearErrors
        FileOpen $0 "$INSTDIR\${FILE}" a
        ${If} ${Errors}
            StrCpy $2 1
        ${Else}
            FileClose $0
        ${EndIf}
    ${EndIf}
!macroend

; A program that started its own update is still ending.
!macro waitForPrograms PREFIX
Function ${PREFIX}waitForPrograms
    ${For} $1 1 60
        StrCpy $2 0
        !insertmacro noteIfRunning "field-calibrator.exe"
        !insertmacro noteIfRunning "field-calibrator-demo.exe"
        !insertmacro noteIfRunning "fieldcal-session.exe"
        ${If} $2 = 0
            Return
        ${EndIf}
        Sleep 500
    ${Next}
    MessageBox MB_ICONSTOP "${NAME} is still running. Close it, and start again." /SD IDOK
    SetErrorLevel 2
    Quit
FunctionEnd
!macroend
!insertmacro waitForPrograms ""
!insertmacro waitForPrograms "un."

; A run that died has left the camera's service disabled, and the note of how it was is of no use to anybody else.
!macro restoreService
    !define NOTE "$APPDATA\field-calibrator\service-start-type"
    ${If} ${FileExists} "${NOTE}"
        FileOpen $0 "${NOTE}" r
        FileRead $0 $1 1
        FileClose $0
        ${If} $1 == 2
            nsExec::Exec 'sc config DeepvanePXMQ550 start= auto'
        ${ElseIf} $1 == 3
            nsExec::Exec 'sc config DeepvanePXMQ550 start= demand'
        ${EndIf}
        Delete "${NOTE}"
    ${EndIf}
    RMDir "$APPDATA\field-calibrator"
!macroend

Section
    Call waitForPrograms
    ; What an older version had and this one has not must go.
    ${If} ${FileExists} "$INSTDIR\uninstall.exe"
        ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR'
    ${EndIf}
    SetOutPath "$INSTDIR"
    File /r "${DIST}/*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateDirectory "$SMPROGRAMS\${NAME}"
    CreateShortcut "$SMPROGRAMS\${NAME}\${NAME}.lnk" "${PROGRAM}"
    CreateShortcut "$SMPROGRAMS\${NAME}\${NAME} Demo.lnk" "$INSTDIR\field-calibrator-demo.exe"
    WriteRegStr HKLM "${ENTRY}" "DisplayName" "${NAME}"
    WriteRegStr HKLM "${ENTRY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM "${ENTRY}" "DisplayIcon" "${PROGRAM}"
    WriteRegStr HKLM "${ENTRY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${ENTRY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKLM "${ENTRY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKLM "${ENTRY}" "NoModify" 1
    WriteRegDWORD HKLM "${ENTRY}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKLM "${ENTRY}" "EstimatedSize" $0
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/AUTOSTART" $1
    ${IfNot} ${Errors}
        Exec '"${PROGRAM}"'
    ${EndIf}
SectionEnd

Function un.onInit
    SetShellVarContext all
FunctionEnd

Section Uninstall
    Call un.waitForPrograms
    !insertmacro restoreService
    !include "${OWNED}"
    Delete "$INSTDIR\uninstall.exe"
    SetOutPath "$TEMP"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\${NAME}\${NAME}.lnk"
    Delete "$SMPROGRAMS\${NAME}\${NAME} Demo.lnk"
    RMDir "$SMPROGRAMS\${NAME}"
    DeleteRegKey HKLM "${ENTRY}"
SectionEnd
