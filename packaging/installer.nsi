; The installer of a package: pack.sh runs it and hands over the version, the machine and the lists of
; files. It asks where to install, and can run without questions: setup.exe /S /D=C:\folder

Unicode true
!if "${MACHINE}" == "x86_64"
    Target amd64-unicode
    !define PROGRAMS "$PROGRAMFILES64"
    !define BITS 64
!else
    Target x86-unicode
    !define PROGRAMS "$PROGRAMFILES32"
    !define BITS 32
!endif
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\TavLumenarDialogs-${MACHINE}"
!define SHORTCUT "$SMPROGRAMS\Tav Lumenar device (${BITS}-bit).lnk"

Name "Tav Lumenar dialogs ${VERSION} (${BITS}-bit)"
OutFile "${SETUP}"
InstallDir "${PROGRAMS}\Tav Lumenar"
InstallDirRegKey HKLM "${ENTRY}" "InstallLocation"
; The programs' folder and the machine's part of the registry belong to administrators.
RequestExecutionLevel admin
; The method whose code in the installer has the same free licence as the rest of it.
SetCompressor /SOLID zlib
XPStyle on
ManifestDPIAware true
ManifestSupportedOS all

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey "FileDescription" "Installer of the Tav Lumenar dialogs (${BITS}-bit)"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductName" "Tav Lumenar dialogs"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "OriginalFilename" "TavLumenarDialogs-${VERSION}-${MACHINE}-setup.exe"
VIAddVersionKey "LegalCopyright" ""

Page components
Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

!macro SameView
    !if ${BITS} == 64
        SetRegView 64
    !endif
    SetShellVarContext all
!macroend

Function .onInit
    !insertmacro SameView
FunctionEnd

Function un.onInit
    !insertmacro SameView
FunctionEnd

Section "Dialogs, device and tools"
    SectionIn RO
    !include "${SCRIPTS}/install.nsh"
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    WriteRegStr HKLM "${ENTRY}" "DisplayName" "Tav Lumenar dialogs (${BITS}-bit)"
    WriteRegStr HKLM "${ENTRY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM "${ENTRY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${ENTRY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKLM "${ENTRY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKLM "${ENTRY}" "NoModify" 1
    WriteRegDWORD HKLM "${ENTRY}" "NoRepair" 1
SectionEnd

; Not chosen by itself: the device covers the whole screen.
Section /o "Start menu entry of the device"
    SetOutPath "$INSTDIR\bin"
    CreateShortcut "${SHORTCUT}" "$INSTDIR\bin\TavLumenarShell.exe"
SectionEnd

Section "Uninstall"
    ; What the device has drawn, and the language that was chosen for it.
    Delete "$INSTDIR\bin\qa_wizard.dat\Classic.bmp"
    Delete "$INSTDIR\bin\qa_wizard.dat\Professional.bmp"
    RMDir "$INSTDIR\bin\qa_wizard.dat"
    Delete "$INSTDIR\bin\TavLumenar.txt"
    !include "${SCRIPTS}/remove.nsh"
    Delete "$INSTDIR\uninstall.exe"
    Delete "${SHORTCUT}"
    ; Only when nothing else is in it.
    RMDir "$INSTDIR"
    DeleteRegKey HKLM "${ENTRY}"
SectionEnd
