#include "tools/samplegame/initexts.h"

namespace tessaro::sample {

std::string_view engineText() {
    return R"ini([URL]
Protocol=unreal
ProtocolDescription=Unreal Protocol
Name=Player
Map=Index.unr
LocalMap=CityIntro.unr
Host=
Portal=
MapExt=unr
SaveExt=usa
Port=7777
Class=Botpack.TMale2

[FirstRun]
FirstRun=436

[PackageRemap]
UnrealI=UnrealShare

[Engine.Engine]
GameRenderDevice=OpenGLDrv.OpenGLRenderDevice
AudioDevice=ALAudio.ALAudioSubsystem
NetworkDevice=IpDrv.TcpNetDriver
DemoRecordingDevice=Engine.DemoRecDriver
Console=UTMenu.UTConsole
Language=int
GameEngine=Engine.GameEngine
EditorEngine=Editor.EditorEngine
WindowedRenderDevice=SoftDrv.SoftwareRenderDevice
RenderDevice=OpenGLDrv.OpenGLRenderDevice
DefaultGame=Botpack.DeathMatchPlus
DefaultServerGame=Botpack.DeathMatchPlus
ViewportManager=WinDrv.WindowsClient
Render=Render.Render
Input=Engine.Input
Canvas=Engine.Canvas
CdPath=
EntryMap=Entry.unr
UseDeferredLoading=False

[Core.System]
PurgeCacheDays=30
SavePath=../Save
CachePath=../Cache
CacheExt=.uxx
Paths=../System/*.u
Paths=../Maps/*.unr
Paths=../Textures/*.utx
Paths=../Sounds/*.uax
Paths=../Music/*.umx
LangPaths=../SystemLocalized/<lang>/*.<lang>
LangPaths=../System/*.<lang>
Suppress=DevLoad
Suppress=DevSave
Suppress=DevNetTraffic
Suppress=DevGarbage
Suppress=DevKill
Suppress=DevReplace
Suppress=DevMusic
Suppress=DevSound
Suppress=DevCompile
Suppress=DevBind
Suppress=DevBsp
Suppress=DevPath
Suppress=Dev
Suppress=NetComeGo

[Engine.GameEngine]
CacheSizeMegs=16
UseSound=True
ServerActors=IpDrv.UdpBeacon
ServerActors=IpServer.UdpServerQuery
%1-15 ServerActors=IpServer.UdpServerUplink MasterServerAddress=master#.example.net MasterServerPort=27900
ServerActors=UWeb.WebServer
ServerPackages=SoldierSkins
ServerPackages=CommandoSkins
ServerPackages=FCommandoSkins
ServerPackages=SGirlSkins
ServerPackages=BossSkins
ServerPackages=Botpack
ServerPackages=MultiMesh
ServerPackages=Relics
ServerPackages=EpicCustomModels
ServerPackages=TCowMeshSkins
ServerPackages=TNaliMeshSkins
ServerPackages=TSkMSkins
MinClientVersion=432
bShowServerNotes=False

[WinDrv.WindowsClient]
WindowedViewportX=800
WindowedViewportY=600
WindowedColorBits=32
FullscreenViewportX=640
FullscreenViewportY=480
FullscreenColorBits=32
Brightness=0.600000
MipFactor=1.000000
UseDirectDraw=False
UseDirectInput=True
UseRawInput=False
UseJoystick=False
CaptureMouse=True
StartupFullscreen=False
CurvedSurfaces=True
LowDetailTextures=False
ScreenFlashes=True
NoLighting=False
SlowVideoBuffering=False
DeadZoneXYZ=True
DeadZoneRUV=False
InvertVertical=False
ScaleXYZ=1000.000000
ScaleRUV=2000.000000
MinDesiredFrameRate=25.000000
Decals=True
NoDynamicLights=False
NoFractalAnim=False
ParticleDensity=0
SkinDetail=High
TextureDetail=High
IgnoreUngrabs=False
UseWindowsKey=True
GammaFloor=0.400000
CdVolume=
MouseFilter=0)ini"
           "\t\n"  // the game itself leaves such a tab behind a value
           R"ini(
[SDLDrv.SDLClient]
WindowedViewportX=800
WindowedViewportY=600
WindowedColorBits=32
FullscreenViewportX=640
FullscreenViewportY=480
FullscreenColorBits=32
Brightness=0.600000
MipFactor=1.000000
UseJoystick=False
JoystickNumber=0
JoystickHatNumber=0
StartupFullscreen=False
CurvedSurfaces=True
LowDetailTextures=False
ScreenFlashes=True
NoLighting=False
DeadZoneXYZ=True
DeadZoneRUV=False
InvertVertical=False
ScaleXYZ=1000.000000
ScaleRUV=2000.000000
MinDesiredFrameRate=25.000000
Decals=True
NoDynamicLights=False

[Engine.Player]
ConfiguredInternetSpeed=10000
ConfiguredLanSpeed=20000

[ALAudio.ALAudioSubsystem]
UseDigitalMusic=True
UseHRTF=Autodetect
UseSpeechVolume=True
UseReverb=False
ReverbIntensity=1.000000
AmbientFactor=0.700000
AmbientHysteresis=256.000000
DopplerFactor=0.010000
DopplerSpeed=9000.000000
EffectsChannels=64
Latency=40
LowSoundQuality=False
MusicAmplify=1.000000
MusicInterpolation=SPLINE
MusicVolume=120
NoFilter=False
OutputRate=44100Hz
ProbeDevices=True
PreferredDevice=
SampleInterpolation=SPLINE
SampleRate=44100
SoundVolume=190
SpeechVolume=200
SoundFalloff=1.000000
StereoPanning=True
UseOriginalUnreal=False

[Galaxy.GalaxyAudioSubsystem]
UseDirectSound=True
UseFilter=True
UseSurround=False
UseStereo=True
UseCDMusic=False
UseDigitalMusic=True
UseSpatial=False
UseReverb=True
Use3dHardware=False
LowSoundQuality=False
ReverseStereo=False
Latency=40
OutputRate=44100Hz
EffectsChannels=16
DopplerSpeed=9000.000000
MusicVolume=120
SoundVolume=190
AmbientFactor=0.700000

[IpDrv.TcpNetDriver]
AllowDownloads=True
ConnectionTimeout=25.000000
InitialConnectTimeout=400.000000
AckTimeout=1.000000
KeepAliveTime=0.200000
MaxClientRate=20000
SimLatency=0
RelevantTimeout=5.000000
SpawnPrioritySeconds=1.000000
ServerTravelPause=4.000000
NetServerMaxTickRate=50
LanServerMaxTickRate=50
MaxDownloadSize=0
MaxFileDownloadRate=-1
MaxConnPerIPPerMinute=5
LogMaxConnPerIPPerMin=False
AllowPlayerPortUnreach=False
DownloadManagers=IpDrv.HTTPDownload
DownloadManagers=Engine.ChannelDownload

[IpDrv.HTTPDownload]
RedirectToURL=
ProxyServerHost=
ProxyServerPort=3128
UseCompression=True

[Engine.DemoRecDriver]
DemoSpectatorClass=Botpack.CHSpectator
NetServerMaxTickRate=60

[Engine.GameReplicationInfo]
ServerName=The Harbour Kettle
ShortName=Kettle
AdminName=
AdminEmail=
Region=0
MOTDLine1=Mind the step.
MOTDLine2=
MOTDLine3=
MOTDLine4=
ShowMOTD=False

[Engine.Canvas]
bUseAltFonts=False

[IpDrv.TcpipConnection]
SimPacketLoss=0
SimLatency=0

[IpServer.UdpServerQuery]
GameName=ut
MinNetVer=432
OldQueryPortNumber=7779

[IpDrv.UdpBeacon]
DoBeacon=True
BeaconTime=0.500000
BeaconTimeout=5.000000
ListenPort=8777

)ini";
}

}  // namespace tessaro::sample
