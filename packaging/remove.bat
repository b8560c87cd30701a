@echo off
rem What Add/Remove Programs starts, with the folder of Q-DIX behind it.
rem The engine of qdix.inf cannot start a program and wait for its end;
rem this file can.
if "%1"=="" goto hint
echo.
echo Removing Q-DIX. The window of Q-DIX Undo opens first: put back there
echo the settings that you want to have as before, and close it.
start /w %1\undo.exe
echo.
echo Close Q-DIX now if it is still open. Its files, its settings and its
echo record of this machine are then deleted. To keep them, press Ctrl+C.
echo.
pause
goto last
:hint
echo To remove Q-DIX open Control Panel, Add/Remove Programs.
pause
:last
rem The engine deletes this file as well. The line that starts it is the
rem last one and has no end, so that this file is at its end before and
rem nobody misses it. An empty window closes by itself.
cls
@if not "%1"=="" rundll.exe setupx.dll,InstallHinfSection DefaultUninstall 4 %1\qdix.inf
