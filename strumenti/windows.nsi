; The installer of Windows: for one user, without an administrator. VERSIONE, PACCO, ICONA and USCITA come from strumenti/windows.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS all

!include MUI2.nsh
!define CLASSI "Software\Classes"
!define DISINSTALLA "Software\Microsoft\Windows\CurrentVersion\Uninstall\Lirmeto"

Name "Lirmeto ${VERSIONE}"
OutFile "${USCITA}"
InstallDir "$LOCALAPPDATA\Programs\Lirmeto"
InstallDirRegKey HKCU "Software\Lirmeto\Installazione" "Cartella"
BrandingText " "
!define MUI_ICON "${ICONA}"
!define MUI_UNICON "${ICONA}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\lirmeto.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Italian"

; Offered by "Open with"; whoever opens these files now goes on doing so.
!macro Offri ESTENSIONE
  WriteRegStr HKCU "${CLASSI}\${ESTENSIONE}\OpenWithProgids" "Lirmeto.Libretto" ""
  WriteRegStr HKCU "${CLASSI}\Applications\lirmeto.exe\SupportedTypes" "${ESTENSIONE}" ""
!macroend
!macro Ritira ESTENSIONE
  DeleteRegValue HKCU "${CLASSI}\${ESTENSIONE}\OpenWithProgids" "Lirmeto.Libretto"
  DeleteRegKey /ifempty HKCU "${CLASSI}\${ESTENSIONE}\OpenWithProgids"
  DeleteRegKey /ifempty HKCU "${CLASSI}\${ESTENSIONE}"
!macroend
!macro PerOgniEstensione COSA
  !insertmacro ${COSA} ".LXC"
  !insertmacro ${COSA} ".DAT"
  !insertmacro ${COSA} ".LXB"
  !insertmacro ${COSA} ".EMP"
!macroend
!define AvvisaShell `System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'`

; A program that runs can be neither replaced nor taken away. Without questions ("/S") that ends it.
!macro AttendiChiuso DI
  Function ${DI}AttendiChiuso
    IfFileExists "$INSTDIR\lirmeto.exe" 0 chiuso
  prova:
    ClearErrors
    FileOpen $0 "$INSTDIR\lirmeto.exe" a
    IfErrors aperto
    FileClose $0
    Goto chiuso
  aperto:
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Lirmeto è aperto: chiuderlo e riprovare." /SD IDCANCEL IDRETRY prova
    SetErrorLevel 2
    Abort
  chiuso:
  FunctionEnd
!macroend
!insertmacro AttendiChiuso ""
!insertmacro AttendiChiuso "un."

Section
  Call AttendiChiuso
  SetOutPath "$INSTDIR"
  File /r "${PACCO}/*.*"
  WriteUninstaller "$INSTDIR\Disinstalla.exe"
  CreateShortcut "$SMPROGRAMS\Lirmeto.lnk" "$INSTDIR\lirmeto.exe"
  CreateShortcut "$SMPROGRAMS\Guida di Lirmeto.lnk" "$INSTDIR\guida\guida.html"

  WriteRegStr HKCU "${CLASSI}\Lirmeto.Libretto" "" "Libretto delle misure"
  WriteRegStr HKCU "${CLASSI}\Lirmeto.Libretto\DefaultIcon" "" "$INSTDIR\lirmeto.exe,0"
  WriteRegStr HKCU "${CLASSI}\Lirmeto.Libretto\shell\open\command" "" '"$INSTDIR\lirmeto.exe" "%1"'
  WriteRegStr HKCU "${CLASSI}\Applications\lirmeto.exe" "FriendlyAppName" "Lirmeto"
  WriteRegStr HKCU "${CLASSI}\Applications\lirmeto.exe\shell\open\command" "" '"$INSTDIR\lirmeto.exe" "%1"'
  !insertmacro PerOgniEstensione Offri

  WriteRegStr HKCU "Software\Lirmeto\Installazione" "Cartella" "$INSTDIR"
  WriteRegStr HKCU "${DISINSTALLA}" "DisplayName" "Lirmeto"
  WriteRegStr HKCU "${DISINSTALLA}" "DisplayVersion" "${VERSIONE}"
  WriteRegStr HKCU "${DISINSTALLA}" "DisplayIcon" "$INSTDIR\lirmeto.exe,0"
  WriteRegStr HKCU "${DISINSTALLA}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${DISINSTALLA}" "UninstallString" '"$INSTDIR\Disinstalla.exe"'
  WriteRegStr HKCU "${DISINSTALLA}" "QuietUninstallString" '"$INSTDIR\Disinstalla.exe" /S'
  WriteRegDWORD HKCU "${DISINSTALLA}" "NoModify" 1
  WriteRegDWORD HKCU "${DISINSTALLA}" "NoRepair" 1
  ${AvvisaShell}
SectionEnd

; What the surveyor made, in Documenti\LIRMETO, and his settings stay.
Section Uninstall
  Call un.AttendiChiuso
  Delete "$SMPROGRAMS\Lirmeto.lnk"
  Delete "$SMPROGRAMS\Guida di Lirmeto.lnk"
  !insertmacro PerOgniEstensione Ritira
  DeleteRegKey HKCU "${CLASSI}\Lirmeto.Libretto"
  DeleteRegKey HKCU "${CLASSI}\Applications\lirmeto.exe"
  DeleteRegKey HKCU "${DISINSTALLA}"
  DeleteRegKey HKCU "Software\Lirmeto\Installazione"
  RMDir /r "$INSTDIR\plugins"
  RMDir /r "$INSTDIR\translations"
  RMDir /r "$INSTDIR\licenze"
  RMDir /r "$INSTDIR\guida"
  Delete "$INSTDIR\*.exe"
  Delete "$INSTDIR\*.dll"
  Delete "$INSTDIR\qt.conf"
  Delete "$INSTDIR\LEGGIMI.txt"
  RMDir "$INSTDIR"
  ${AvvisaShell}
SectionEnd
