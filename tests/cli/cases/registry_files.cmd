key='HKEY_CURRENT_USER\Software\Example'
say "Bare values."
run fernwick registry set "$key" Text 'C:\folder é'
run fernwick registry set "$key" Number dword:0000000a
run fernwick registry set "$key" Bytes hex:01,ff
run fernwick registry set "$key" List 'hex(7):61,00,00,00,62,00,00,00,00,00'
for name in Text Number Bytes List; do run fernwick registry get "$key" $name --bare; done
run fernwick registry get "$key" --bare
say "Deleting."
run fernwick registry delete "$key" Bytes --dry-run
run fernwick registry delete "$key" Bytes
run fernwick registry delete "$key" Bytes
run fernwick registry get "$key" Bytes
run fernwick registry delete "$key"
run fernwick registry delete "$key"
run fernwick registry delete HKEY_CURRENT_USER
say "Files of older registry editors are in code page 1252."
printf 'REGEDIT4\r\n\r\n[%s]\r\n"Text"="caf\351"\r\n"Path"=hex(2):25,e9,25,00\r\n' "$key" >old.reg
run fernwick registry import old.reg
run fernwick registry get "$key"
say "The encoding of regedit, which can be imported again."
fernwick registry export "$key" --utf16 >new.reg
head -c 8 new.reg | od -An -tx1
fernwick registry delete "$key"
run fernwick registry import new.reg
run fernwick registry get "$key"
