#include "tools/samplegame/initexts.h"

namespace tessaro::sample {

std::string_view userText() {
    return R"ini([DefaultPlayer]
Name=Player
Class=Botpack.TMale2
team=255
skin=SoldierSkins.blkt
Face=SoldierSkins.Othello

[Engine.Input]
Aliases[0]=(Command="Button bFire | Fire",Alias="Fire")
Aliases[1]=(Command="Button bAltFire | AltFire",Alias="AltFire")
Aliases[2]=(Command="Axis aBaseY Speed=+300.0",Alias="MoveForward")
Aliases[3]=(Command="Axis aBaseY Speed=-300.0",Alias="MoveBackward")
Aliases[4]=(Command="Axis aBaseX Speed=-150.0",Alias="TurnLeft")
Aliases[5]=(Command="Axis aBaseX Speed=+150.0",Alias="TurnRight")
Aliases[6]=(Command="Axis aStrafe Speed=-300.0",Alias="StrafeLeft")
Aliases[7]=(Command="Axis aStrafe Speed=+300.0",Alias="StrafeRight")
Aliases[8]=(Command="Jump | Axis aUp Speed=+300.0",Alias="Jump")
Aliases[9]=(Command="Button bDuck | Axis aUp Speed=-300.0",Alias="Duck")
Aliases[10]=(Command="Button bLook",Alias="Look")
Aliases[11]=(Command="Toggle bLook",Alias="LookToggle")
Aliases[12]=(Command="Button bRun",Alias="Walking")
Aliases[13]=(Command="Button bStrafe",Alias="Strafe")
Aliases[14]=(Command="GetWeapon Translocator",Alias="Beacon")
Aliases[15]=(Command="Say On my way | Speech 2 1",Alias="Coming")
%16-39 Aliases[#]=(Command="",Alias="None")
LeftMouse=Fire
RightMouse=AltFire
MiddleMouse=Jump
MouseWheelUp=PrevWeapon
MouseWheelDown=NextWeapon
%4-8 MouseButton#=
0=SwitchWeapon 10
%1-9 #=SwitchWeapon #
A=StrafeLeft
B=
C=Duck
D=StrafeRight
E=ActivateItem
f=FeignDeath
G=ThrowWeapon
H=Taunt Wave
i=
J=Taunt Taunt1
K=Taunt Thrust
L=Taunt Victory1
M=
N=
O=
P=
Q=Beacon
R=TeamTalk
S=MoveBackward
T=Talk
U=
V=
W=MoveForward
X=Coming
Y=
Z=
F1=ShowScores
F2=ShowServerInfo
F3=ShowObjectives
F4=
F5=ViewTeam
F6=Stat Net
F7=
F8=
F9=SShot
F10=Cancel
F11=Brightness
F12=EndFullscreen
%13-24 F#=
%0-9 NumPad#=ViewPlayerNum #
GreyPlus=GrowHUD
GreyMinus=ShrinkHUD
GreyStar=
GreySlash=
NumPadPeriod=
Up=MoveForward
Down=MoveBackward
Left=TurnLeft
Right=TurnRight
Insert=
Delete=
home=
End=Look
PageUp=
PageDown=
Space=Jump
Enter=ActivateItem
Shift=Walking
Ctrl=Duck
Alt=Strafe
Tab=Type
CapsLock=
Escape=ShowMenu
Backspace=
Pause=Pause
PrintScrn=
NumLock=
ScrollLock=
Semicolon=ThrowWeapon
Equals=GrowHUD
Comma=
Minus=ShrinkHUD
Period=
Slash=
Tilde=
LeftBracket=PrevItem
Backslash=
RightBracket=NextItem
SingleQuote=
%1-16 Joy#=
JoyX=
JoyY=
JoyZ=
JoyR=
JoyU=
JoyV=
JoyPovUp=
JoyPovDown=
JoyPovLeft=
JoyPovRight=
MouseX=Axis aMouseX Speed=2.0
MouseY=Axis aMouseY Speed=2.0
MouseZ=
MouseW=
LShift=
RShift=
LControl=
RControl=
%10-99 Unknown#=
%1-9 UnknownA#=
%0-9 UnknownB#=

[Engine.PlayerPawn]
DodgeClickTime=0.250000
Bob=0.016000
%0-19 WeaponPriority[#]=None
FOVAngle=90.000000
DesiredFOV=90.000000
DefaultFOV=90.000000
Handedness=-1.000000
MyAutoAim=1.000000
MouseSensitivity=3.000000
MouseSmoothThreshold=0.070000
MaxMouseSmoothing=1
Password=
ngWorldSecret=
NetSpeed=10000
bAlwaysMouseLook=True
bKeyboardLook=True
bInvertMouse=False
bLookUpStairs=False
bMaxMouseSmoothing=True
bNeverAutoSwitch=False
bNoFlash=False
bNoVoices=False
bSnapToLevel=False
bMessageBeep=True
bNoVoiceMessages=False
bNoVoiceTaunts=False
%20-49 WeaponPriority[#]=None

[Engine.HUD]
HudMode=0)ini"
           "\t\n"  // as the game leaves it
           R"ini(Crosshair=0
HUDConfigWindowType=UMenu.UMenuHUDConfigCW

[Botpack.ChallengeHUD]
CrosshairCount=9
Opacity=15.000000
HUDScale=1.000000
StatusScale=1.000000
WeaponScale=0.800000
bStartUpMessage=True
bUseTeamColor=True
bHideHUD=False
bHideAllWeapons=False
bHideStatus=False
bHideAmmo=False
bHideFrags=False
bHideFaces=False
bAlwaysHideFrags=False
bHideNoviceMessages=False
bHideCenterMessages=False
FavoriteHUDColor=(R=0,G=12,B=14,A=0)
CrosshairColor=(R=0,G=15,B=0,A=0)
%1-20 CrossHairs[#]=Botpack.CHair#
WhiteColor=(R=250,G=250,B=250,A=0)
LastSeen=
bShowInfo=False
DMSweatDistance=0.000000

[Botpack.ChallengeBotInfo]
%0-31 VoiceType[#]=BotPack.VoiceMaleTwo
%0-31 BotFaces[#]=
%0-31 BotNames[#]=Bellringer #
%0-31 BotTeams[#]=255
%0-31 BotSkins[#]=CommandoSkins.cmdo
Difficulty=1
bAdjustSkill=False
bRandomOrder=True

[Botpack.TournamentPlayer]
bAutoTaunt=False
bInstantRocket=False

[Engine.Pawn]
bIsFemale=False

[Botpack.FontInfo]
bUseLadderFonts=True
)ini";
}

}  // namespace tessaro::sample
