@echo off
rem Lists the files of the disc this program lies on.
rem With /w the names are shown in several columns.
title What is on this disc
cd /d "%~dp0.."
if /i "%1"=="/w" (dir /s /w /a-d) else (dir /s /b /a-d)
echo.
pause
