#include "tools/samplegame/initexts.h"

namespace tessaro::sample {

std::string_view gameText() {
    return R"ini([UMenu.UMenuNetworkClientWindow]
bShowDownloads=True
NetSpeedChoice=2

[UMenu.UMenuMenuBar]
ShowHelp=True
GameHelp=

[UMenu.UMenuNewGameClientWindow]
LastSelectedSkill=1

[UMenu.UMenuStartMatchClientWindow]
bUsesDefaults=False

[UMenu.UMenuNetworkClientWindow]
NetSpeedChoice=3
bUseLanSpeed=False

[Botpack.ChallengeBotInfo]
bAdjustSkill=False
bRandomOrder=True
Difficulty=1

[Botpack.DeathMatchPlus]
bNoviceMode=True
bHumansOnly=False
bJumpMatch=False
bMegaSpeed=False
bMultiWeaponStay=True
bForceRespawn=False
bChangeLevels=True
bTournament=False
bUseTranslocator=False
bAlwaysForceRespawn=False
bCoopWeaponMode=True
bHardCoreMode=True
bAltScoring=False
bClassicDeathMessages=False
bNoMonsters=True
FragLimit=30
TimeLimit=0
InitialBots=6
MinPlayers=0
MaxCommanders=0
NetWait=10
RestartWait=15
GameSpeed=1.000000
AirControl=0.350000
Difficulty=1
CountDown=4
StartUpMessage=

[Botpack.CTFGame]
bUseTranslocator=True
bMultiWeaponStay=True
bSpawnInTeamArea=True
GoalTeamScore=3.000000
FragLimit=0
TimeLimit=20
InitialBots=7
MaxTeamSize=16

[Botpack.Domination]
bUseTranslocator=True
GoalTeamScore=100.000000
bDumbDown=True
FragLimit=0
TimeLimit=0

[Botpack.Assault]
bUseTranslocator=False
bDefenseSet=False
Defenses=0
SavedTime=0.000000
bCoopWeaponMode=True
HighScore=

[Botpack.TeamGamePlus]
bBalanceTeams=True
bPlayersBalanceTeams=False
bNoTeamChanges=False
FriendlyFireScale=0.000000
MaxTeams=2
MaxTeamSize=16
GoalTeamScore=30.000000

[Botpack.LastManStanding]
FragLimit=20
TimeLimit=0

[Engine.GameInfo]
bLowGore=False
bVeryLowGore=False
bMuteSpectators=False
bNoCheating=True
bAllowFOV=False
bLocalLog=False
bWorldLog=True
bBatchLocal=False
bLogAdminActions=True
bExternalBatcher=False
AutoAim=0.930000
GameSpeed=1.000000
MaxPlayers=16
MaxSpectators=2
MaxLoginAttempts=3
MaxNameChanges=0
LoginDelaySeconds=3.000000
ActionToTake=DO_KickBan
AdminPassword=
GamePassword=
ServerLogName=server.log
LocalBatcherURL=
LocalBatcherParams=
LocalLogFileName=
WorldBatcherURL=
WorldBatcherParams=
WorldStatsURL=
DemoBuild=0
DemoHasTuts=0
DefaultPlayerState=PlayerWalking
WorldLogWorldSecret=
IPPolicies[0]=ACCEPT,*
IPPolicies[1]=DENY,192.0.2.66
IPPolicies[2]=DENY,198.51.100.*
%3-254 IPPolicies[#]=

[UBrowser.UBrowserMainClientWindow]
LANTabName=UBrowserLAN
bKeepMasterServer=True
ServerListTitle=
ServerListNames[0]=UBrowserUT
ServerListNames[1]=UBrowserLAN
ServerListNames[2]=UBrowserPopulated
ServerListNames[3]=UBrowserDeathmatch
ServerListNames[4]=UBrowserTeamGames
ServerListNames[5]=UBrowserCTF
ServerListNames[6]=UBrowserAll
%7-19 ServerListNames[#]=None

[UBrowserUT]
ListFactories[0]=UBrowser.UBrowserSubsetFact,SupersetTag=UBrowserAll,GameType=,bCompatibleServersOnly=True
URLAppend=
AutoRefreshTime=20
bNoAutoSort=False

[UBrowserLAN]
ListFactories[0]=UBrowser.UBrowserLocalFact,BeaconProduct=ut
URLAppend=?LAN
AutoRefreshTime=10
bNoAutoSort=True

[UBrowserPopulated]
ListFactories[0]=UBrowser.UBrowserSubsetFact,SupersetTag=UBrowserAll,MinPlayers=1,bCompatibleServersOnly=True

[UBrowserDeathmatch]
ListFactories[0]=UBrowser.UBrowserSubsetFact,SupersetTag=UBrowserAll,GameType=DeathMatchPlus,bCompatibleServersOnly=True

[UBrowserTeamGames]
ListFactories[0]=UBrowser.UBrowserSubsetFact,SupersetTag=UBrowserAll,GameType=TeamGamePlus,bCompatibleServersOnly=True

[UBrowserCTF]
ListFactories[0]=UBrowser.UBrowserSubsetFact,SupersetTag=UBrowserAll,GameType=CTFGame,bCompatibleServersOnly=True

[UBrowserAll]
%0-9 ListFactories[#]=UBrowser.UBrowserGSpyFact,MasterServerAddress=list#.example.net,MasterServerTCPPort=28900,GameName=ut
bHidden=True
bFallbackFactories=True
AutoRefreshTime=0
URLAppend=
bNoAutoSort=False

[UTMenu.UTMenuStartMatchClientWindow]
Map=DM-Deck16][.unr
GameType=Botpack.DeathMatchPlus
bChangeLevels=True
MutatorList=

[UTMenu.UTServerSetupPage]
bLanPlay=False

[Botpack.TDMmaplist]
MapNum=0
Maps[0]=DM-Barricade.unr
Maps[1]=DM-Curse][.unr
Maps[2]=DM-Deck16][.unr
Maps[3]=DM-Fractal.unr

[Botpack.CTFMapList]
MapNum=1
Maps[0]=CTF-Command.unr
Maps[1]=CTF-Coret.unr
Maps[2]=CTF-Face.unr

[UWeb.WebServer]
Applications[0]=UTServerAdmin.UTServerAdmin
ApplicationPaths[0]=/ServerAdmin
Applications[1]=UTServerAdmin.UTImageServer
ApplicationPaths[1]=/images
DefaultApplication=0
bEnabled=False
Listenport=8080
MaxConnections=30

[UTServerAdmin.UTServerAdmin]
AdminUsername=admin
AdminPassword=
AdminRealm=UT Remote Admin Server

[Render.Render]
LeafStats=False
GlobalMeshLOD=1.000000
GlobalShapeLOD=1.000000

[WindowPositions]
GameLog=(X=40,Y=40,XL=640,YL=400)
EdPreferences=(X=200,Y=120,XL=480,YL=520)

[Botpack.UTIntro]
bPlayed=True

[UTMenu.UTConsole]
bShowMessages=True
bShowHistory=False
SpeechKey=86
ConsoleLines=
%0-49 SavedPasswords[#]=

[UWindow.WindowConsole]
RootWindow=UMenu.UMenuRootWindow
ConsoleKey=192
ShowDesktop=True
MouseScale=0.600000

[Engine.Console]
OnlineServices[0]=Front Page,,URL,http://www.example.org/
OnlineServices[1]=Music Off,,CMD,SET ini:Engine.Engine.AudioDevice MusicVolume 0
OnlineServices[2]=Music On,,CMD,SET ini:Engine.Engine.AudioDevice MusicVolume 120
%3-15 OnlineServices[#]=

[Engine.StatLog]
LocalLogDir=../Logs
bLogAll=False

[IpServer.UdpServerUplink]
DoUplink=True
UpdateMinutes=1
MasterServerPort=27900
Region=0

)ini";
}

// Addresses are those reserved for documentation, so that nobody's server is ever called.
std::string_view usedText() {
    return R"ini([UBrowser.UBrowserFavoritesFact]
FavoriteCount=10
Favorites[0]=The Harbour Kettle [DM]\192.0.2.14\7778\True
Favorites[1]=|QX| Windmill CTF | no camping\198.51.100.7\7778\False
Favorites[2]=203.0.113.9\203.0.113.9\8889\False
Favorites[3]=The Harbour Kettle [DM]\192.0.2.15\7778\False
Favorites[4]=Tarn's Place - Assault 24/7\203.0.113.77\9001\True
Favorites[5]=Sunday Siege = Fun\198.51.100.201\7798\False
Favorites[6]=\192.0.2.31\7778\False
Favorites[7]=Monster Cellar (co-op)\192.0.2.200\7788\True\7787\8
Favorites[8]=Grandmasters' Invitational - Tuesday Ladder\192.0.2.77\7778\True
Favorites[9]=Polite Players Only\203.0.113.120\7778
Favorites[10]=

[UBrowser.UBrowserOpenCW]
OpenHistory[0]=unreal://192.0.2.14:7777
OpenHistory[1]=198.51.100.7
%2-9 OpenHistory[#]=

[UBrowser.UBrowserIRCSetupClient]
IRCServerHistory[0]=irc.example.org
IRCChannelHistory[0]=#tournament
IRCChannelHistory[1]=#harbour

[UBrowser.UBrowserIRCSystemPage]
NickName=Player
FullName=
UserIdent=player
)ini";
}

}  // namespace tessaro::sample
