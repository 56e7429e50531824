@echo off
rem Hands the three pieces to the player one after the other.
cd /d "%~dp0..\music"
echo First light
start /wait first-light.mid
echo Quiet street
start /wait quiet-street.mid
echo Evening round
start /wait evening-round.mid
