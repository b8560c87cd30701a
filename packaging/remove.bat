@echo off
rem Add/Remove Programs starts this file with the folder of Q-DIX.
rem The engine of qdix.inf cannot start a program and wait for it to end;
rem this file can.
if "%1"=="" goto hint
echo.
echo Removing Q-DIX. Q-DIX Undo opens first: put back the settings that you
echo want to restore, and close it.
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
rem The engine deletes this file too. The last line starts the engine and
rem has no line end: the command interpreter has then read the whole file
rem and does not open it again. Windows closes an empty window by itself.
cls
@if not "%1"=="" rundll.exe setupx.dll,InstallHinfSection DefaultUninstall 4 %1\qdix.inf
