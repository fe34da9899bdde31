run fernwick devices
run fernwick devices --verbose
say keys in any letter case, each added once
run fernwick devices add palmos-dragonball PocketPC-ARM
run fernwick devices add PalmOS-DragonBall
run fernwick devices list
run fernwick registry get 'HKEY_CURRENT_USER\SOFTWARE\Quinloft\AddinPrefs\MyDevices'
run fernwick devices remove POCKETPC-ARM PocketPC-SH3
run fernwick devices remove PocketPC-ARM
run fernwick devices
say why a device cannot be reached
run fernwick devices add LinuxHandheld-ARM
run fernwick devices
run fernwick devices remove LinuxHandheld-ARM
say unknown keys change nothing
run fernwick devices add PocketPC-ARM Psion-5
run fernwick devices remove Psion-5
run fernwick devices add
run fernwick devices remove
run fernwick devices sell PalmOS-DragonBall
run fernwick devices add Psion-5 --format json
run fernwick devices
say a device that is no longer installed can be removed
run fernwick registry set 'HKEY_CURRENT_USER\SOFTWARE\Quinloft\AddinPrefs\MyDevices' MyDevice0 Psion-5
run fernwick devices
run fernwick devices remove Psion-5
runline 'fernwick devices | grep Psion'
say how a device is reached
run fernwick devices set LinuxHandheld-ARM Host=handheld.local user=me Folder=/opt/apps
run fernwick devices set linuxhandheld-arm Port=2222 User=
run fernwick registry get 'HKEY_CURRENT_USER\Software\Quinloft\Devices\LinuxHandheld-ARM'
run fernwick devices set LinuxHandheld-ARM Port=ssh
run fernwick devices set LinuxHandheld-ARM Host=here Colour=red
run fernwick devices set LinuxHandheld-ARM Host
run fernwick devices set LinuxHandheld-ARM $'Folder=a\nb'
run fernwick devices set LinuxHandheld-ARM
run fernwick devices set PalmOS-DragonBall Host=here
run fernwick devices set Psion-5 Host=here
run fernwick registry get 'HKEY_CURRENT_USER\Software\Quinloft\Devices\LinuxHandheld-ARM'
say a store that cannot be written
mkdir -p "$XDG_CONFIG_HOME/fernwick"
rm -f "$XDG_CONFIG_HOME"/fernwick/*
echo 'no store' >"$XDG_CONFIG_HOME/fernwick/user.sqlite"
run fernwick devices add PalmOS-DragonBall
run fernwick devices set LinuxHandheld-ARM Host=here
