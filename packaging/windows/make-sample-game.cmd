@echo off
rem Builds a small game to try the program on, and has the program use it.
cd /d "%~dp0"
if exist "..\vornx.ini" (
    echo There are settings already: ..\vornx.ini
    echo Remove that file first if you want to start on the sample game.
) else (
    tessaro-sample.exe "%CD%\game" "%CD%\..\vornx.ini" && echo Done. Start tessaro.exe now.
)
pause
