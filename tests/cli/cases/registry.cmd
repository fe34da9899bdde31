key='HKEY_CURRENT_USER\Software\Quinloft\AddinPrefs'
run fernwick registry get "$key"
run fernwick registry set "$key" ZoomWinState dword:0000000a
run fernwick registry set "$key" 'A "name"' 'C:\folder é'
run fernwick registry set "$key" '' default
run fernwick registry get "$key"
run fernwick registry get "$key" zoomwinstate
run fernwick registry get "$key" ZoomWinState --format json
run fernwick registry get "$key" Missing
run fernwick registry get 'HKEY_NOWHERE\Software'
run fernwick registry set "$key" Bad dword:zz
run fernwick registry export "$key"
fernwick registry export "$key" >kept.reg
sed -i 's/0000000a/0000000b/' kept.reg
run fernwick registry import kept.reg
run fernwick registry get "$key" ZoomWinState
printf 'Windows Registry Editor Version 5.00\n\n[%s]\n"ZoomWinState"=-\n' "$key" >gone.reg
run fernwick registry import --dry-run gone.reg
runline 'fernwick registry import - <gone.reg'
run fernwick registry get "$key"
run fernwick registry import missing.reg
echo 'no such format' >bad.reg
run fernwick registry import bad.reg
run fernwick registry get 'HKEY_LOCAL_MACHINE\Software\Quinloft'
