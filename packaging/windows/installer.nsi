; SPDX-License-Identifier: Apache-2.0
; The Windows installer. tools/package calls it with these:
;   VERSION     of the file          STAGE     folder with what is installed
;   FILES       list of what is installed, for the uninstaller       OUTPUT    the installer
;   LICENCE     its text             ICON      of installer and uninstaller
; Silent: setup.exe /S [/D=FOLDER] and uninstall.exe /S.
Target amd64-unicode
ManifestDPIAware true
ManifestSupportedOS Win10
SetCompressor /SOLID lzma
RequestExecutionLevel admin

!include MUI2.nsh
!include FileFunc.nsh
!include x64.nsh
!include WinVer.nsh

!define PRODUCT "Tamrex Diagnostics"
!define PROGRAM "TamrexDiagnostics"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${PROGRAM}"

Name "${PRODUCT}"
OutFile "${OUTPUT}"
InstallDir "$PROGRAMFILES64\Tamrex\${PROGRAM}"
InstallDirRegKey HKLM "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "${PRODUCT} ${VERSION}"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_LANGDLL_REGISTRY_ROOT HKLM
!define MUI_LANGDLL_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MUI_LANGDLL_REGISTRY_VALUENAME "InstallerLanguage"
!define MUI_FINISHPAGE_RUN "$INSTDIR\${PROGRAM}.exe"

!insertmacro MUI_PAGE_LICENSE "${LICENCE}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

; The languages of the program; the first is for every other system.
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "PortugueseBR"
!insertmacro MUI_LANGUAGE "Spanish"
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "Italian"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "Dutch"
!insertmacro MUI_LANGUAGE "SimpChinese"
!insertmacro MUI_LANGUAGE "Japanese"
!insertmacro MUI_RESERVEFILE_LANGDLL

VIProductVersion "${VERSION}"
VIFileVersion "${VERSION}"
VIAddVersionKey /LANG=0 "ProductName" "${PRODUCT}"
VIAddVersionKey /LANG=0 "FileDescription" "${PRODUCT} installer"
VIAddVersionKey /LANG=0 "CompanyName" "Tamrex"
VIAddVersionKey /LANG=0 "LegalCopyright" "Apache License 2.0"
VIAddVersionKey /LANG=0 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=0 "ProductVersion" "${VERSION}"

LangString needs_x64 ${LANG_ENGLISH} "${PRODUCT} needs 64-bit Windows 10 or later."
LangString needs_x64 ${LANG_PORTUGUESEBR} "O ${PRODUCT} requer o Windows 10 de 64 bits ou posterior."
LangString needs_x64 ${LANG_SPANISH} "${PRODUCT} necesita Windows 10 de 64 bits o posterior."
LangString needs_x64 ${LANG_FRENCH} "${PRODUCT} nécessite Windows 10 64 bits ou une version ultérieure."
LangString needs_x64 ${LANG_ITALIAN} "${PRODUCT} richiede Windows 10 a 64 bit o versione successiva."
LangString needs_x64 ${LANG_GERMAN} "${PRODUCT} benötigt Windows 10 (64 Bit) oder neuer."
LangString needs_x64 ${LANG_DUTCH} "${PRODUCT} vereist de 64-bits versie van Windows 10 of hoger."
LangString needs_x64 ${LANG_SIMPCHINESE} "${PRODUCT} 需要 64 位 Windows 10 或更高版本。"
LangString needs_x64 ${LANG_JAPANESE} "${PRODUCT} には 64 ビット版の Windows 10 以降が必要です。"

Function .onInit
    SetRegView 64
    !insertmacro MUI_LANGDLL_DISPLAY
    ${Unless} ${AtLeastWin10}
        MessageBox MB_OK|MB_ICONSTOP "$(needs_x64)" /SD IDOK
        SetErrorLevel 3
        Quit
    ${EndUnless}
FunctionEnd

Function un.onInit
    SetRegView 64
    !insertmacro MUI_UNGETLANGUAGE
FunctionEnd

Section
    SetShellVarContext all
    SetOutPath "$INSTDIR"
    File /r "${STAGE}/*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\${PRODUCT}.lnk" "$INSTDIR\${PROGRAM}.exe"

    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "${PRODUCT}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "Publisher" "Tamrex"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\${PROGRAM}.exe"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKLM "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "EstimatedSize" $0
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; Only what was installed goes: somebody may have put files of his own into the folder. What the program wrote lies in the
; user's own folders and stays.
Section Uninstall
    SetShellVarContext all
    !include "${FILES}"
    Delete "$INSTDIR\uninstall.exe"
    Delete "$SMPROGRAMS\${PRODUCT}.lnk"
    SetOutPath "$TEMP"
    RMDir "$INSTDIR"
    RMDir "$INSTDIR\.." ; the maker's folder, when nothing else is in it
    DeleteRegKey HKLM "${UNINSTALL_KEY}"
SectionEnd
