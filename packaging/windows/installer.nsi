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
!define FRESH "$INSTDIR.new"
!define OLD "$INSTDIR.old"
!define LEFT "$INSTDIR.left"
!define NOTE "Software\Field Calibrator"

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

; A run that died has left the camera's service disabled and noted its start type. The note stays until the start type
; has been restored.
!macro restoreService
    ClearErrors
    ReadRegDWORD $1 HKLM "${NOTE}" "ServiceStartType"
    ${IfNot} ${Errors}
        StrCpy $0 1
        ${If} $1 = 2
            nsExec::Exec '"$SYSDIR\sc.exe" config DeepvanePXMQ550 start= auto'
            Pop $0
        ${ElseIf} $1 = 3
            nsExec::Exec '"$SYSDIR\sc.exe" config DeepvanePXMQ550 start= demand'
            Pop $0
        ${EndIf}
        ${If} $0 == 0
            DeleteRegValue HKLM "${NOTE}" "ServiceStartType"
        ${EndIf}
    ${EndIf}
    DeleteRegKey /ifnovalues HKLM "${NOTE}"
!macroend

; Removes what this installer lays down, by name: a recursive removal would follow a junction.
Function removeFresh
    SetOutPath "$TEMP"
    Push $INSTDIR
    StrCpy $INSTDIR "${FRESH}"
    !include "${OWNED}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Pop $INSTDIR
FunctionEnd

; Whoever asked for the program gets the one that is installed now, also after a failure.
Function startIfAsked
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/AUTOSTART" $1
    ${IfNot} ${Errors}
        Exec '"${PROGRAM}"'
    ${EndIf}
FunctionEnd

Function stopWithoutChange
    Call removeFresh
    MessageBox MB_ICONSTOP "${NAME} could not be installed. What was installed before is unchanged." /SD IDOK
    Call startIfAsked
    SetErrorLevel 3
    Quit
FunctionEnd

; Renames $0 to the first free one of ${LEFT}, ${LEFT}.2, …, ${LEFT}.99. Where none is free, it stays.
Function setAside
    StrCpy $1 "${LEFT}"
    ${For} $2 2 100
        ${IfNot} ${FileExists} "$1"
            Rename "$0" "$1"
            Return
        ${EndIf}
        StrCpy $1 "${LEFT}.$2"
    ${Next}
FunctionEnd

; Moves what others put beside the old version from $0 to $1, where nothing has the same name. Keeps the registers.
Function moveRest
    Push $2
    Push $3
    FindFirst $2 $3 "$0\*"
    ${DoWhile} $3 != ""
        ${If} $3 != "."
        ${AndIf} $3 != ".."
            ${IfNot} ${FileExists} "$1\$3"
                Rename "$0\$3" "$1\$3"
            ${ElseIf} ${FileExists} "$0\$3\*"
                Push $0
                Push $1
                StrCpy $0 "$0\$3"
                StrCpy $1 "$1\$3"
                Call moveRest
                Pop $1
                Pop $0
            ${EndIf}
        ${EndIf}
        FindNext $2 $3
    ${Loop}
    FindClose $2
    RMDir "$0"
    Pop $3
    Pop $2
FunctionEnd

; The old version's uninstaller removes what that version installed, except itself, and the rest moves.
Function removeOld
    ${If} ${FileExists} "${OLD}\uninstall.exe"
        ExecWait '"${OLD}\uninstall.exe" /S _?=${OLD}' $0
        ${If} $0 <> 0
            Return
        ${EndIf}
        Delete "${OLD}\uninstall.exe"
    ${EndIf}
    ${If} ${FileExists} "${OLD}\*"
        StrCpy $0 "${OLD}"
        StrCpy $1 "$INSTDIR"
        Call moveRest
    ${EndIf}
FunctionEnd

; An installation that a power cut interrupted is either undone or finished.
Function settleLastRun
    ${If} ${FileExists} "${OLD}\*"
        ${If} ${FileExists} "${PROGRAM}"
            Call removeOld
        ${Else}
            ClearErrors
            Rename "${OLD}" "$INSTDIR"
            ${If} ${Errors}  ; something has made the folder again, without the program
                StrCpy $0 "${OLD}"
                StrCpy $1 "$INSTDIR"
                Call moveRest
            ${EndIf}
        ${EndIf}
    ${EndIf}
    Call removeFresh
    ; What cannot be removed by name, or was left by another version, must neither become a part of this one nor prevent
    ; it.
    ${If} ${FileExists} "${OLD}"
        StrCpy $0 "${OLD}"
        Call setAside
    ${EndIf}
    ${If} ${FileExists} "${FRESH}"
        StrCpy $0 "${FRESH}"
        Call setAside
    ${EndIf}
    ${If} ${FileExists} "${OLD}"
    ${OrIf} ${FileExists} "${FRESH}"
        Call stopWithoutChange
    ${EndIf}
FunctionEnd

; Runs when a file cannot be written, before anything of the old version is touched.
Function .onInstFailed
    Call removeFresh
    Call startIfAsked
FunctionEnd

Section
    Call waitForPrograms
    Call settleLastRun
    ; The new version is complete beside the old one before that gives way.
    ClearErrors
    SetOverwrite try
    SetOutPath "${FRESH}"
    File /r "${DIST}/*"
    WriteUninstaller "${FRESH}\uninstall.exe"
    SetOutPath "$TEMP"
    ${If} ${Errors}
        Call stopWithoutChange
    ${EndIf}
    ${If} ${FileExists} "$INSTDIR\*"
        Rename "$INSTDIR" "${OLD}"
        ${If} ${Errors}
            Call stopWithoutChange
        ${EndIf}
    ${EndIf}
    Rename "${FRESH}" "$INSTDIR"
    ${If} ${Errors}
        Rename "${OLD}" "$INSTDIR"
        Call stopWithoutChange
    ${EndIf}
    Call removeOld
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
    Call startIfAsked
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
