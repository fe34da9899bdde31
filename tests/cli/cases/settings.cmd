sample HelloWorld
cd HelloWorld
cp HelloWorld.vbp before
run fernwick settings list
run fernwick settings get TargetDevice
run fernwick settings get defaultfontsize --format json
run fernwick settings get Colour
run fernwick settings get
run fernwick settings set DefaultFontSize
run fernwick settings set DefaultFontSize nine
run fernwick settings set Autosave maybe
run fernwick settings set ProjectVersion 9
run fernwick settings set TargetDevice Toaster
run fernwick settings set DefaultFontName "$(printf 'a\nb')"
run fernwick settings set DefaultFontName '日本'
run fernwick settings reset ProjectVersion
run fernwick settings set DefaultFontSize 12
same HelloWorld.vbp before
run fernwick settings set DefaultFontSize 9 --verbose
stored HelloWorld.vbp DefaultFontSize
run fernwick settings set HelloWorld.vbp PostCompileSteps 'cp "a b" c' 'echo x=y'
grep -a CompileStep HelloWorld.vbp | tr -d '\r'
run fernwick settings get PostCompileSteps
run fernwick settings get PostCompileSteps --format json
run fernwick settings reset PostCompileSteps
run fernwick settings reset ScanReferences
run fernwick settings reset
run fernwick settings set DefaultFormWidth 1
run fernwick settings reset --all --dry-run
run fernwick settings reset --all
run fernwick settings list

say "Settings of the application on a device, with the rules of their page."
run fernwick settings set HelloWorld.vbp PalmOSCreatorID Hello
run fernwick settings set HelloWorld.vbp PalmOSCreatorID helo
run fernwick settings set HelloWorld.vbp PalmOSCreatorID "$(printf 'a\tb')"
run fernwick settings set HelloWorld.vbp PalmOSMemoryLimit 1024
run fernwick settings set HelloWorld.vbp PocketPCMemoryLimit 1024
run fernwick settings set HelloWorld.vbp PocketPCOrientation sideways
run fernwick settings set HelloWorld.vbp PalmOSVersion '日本'
run fernwick settings set HelloWorld.vbp PalmOSCreatorID HeLo
run fernwick settings get HelloWorld.vbp PalmOSCreatorID --format json
grep -a -A3 'Quinloft Palm OS' HelloWorld.vbp | tr -d '\r'
run fernwick settings reset HelloWorld.vbp --all
grep -a -A3 'Quinloft Palm OS' HelloWorld.vbp | tr -d '\r'

say "A project overrides the folder on its handheld, but not where that is."
run fernwick settings set HelloWorld.vbp HandheldFolder /
run fernwick settings set HelloWorld.vbp HandheldFolder games
run fernwick settings get HelloWorld.vbp HandheldFolder
grep -a -A3 'Quinloft Linux Handheld' HelloWorld.vbp | tr -d '\r'
run fernwick settings reset HelloWorld.vbp HandheldFolder
run fernwick settings get HelloWorld.vbp HandheldFolder
cp HelloWorld.vbp before
run fernwick settings set HelloWorld.vbp HandheldHost 'a b'
run fernwick settings set HelloWorld.vbp HandheldHost handheld.local --dry-run
run fernwick settings get HelloWorld.vbp HandheldHost
run fernwick settings set HelloWorld.vbp HandheldHost handheld.local
run fernwick settings set HelloWorld.vbp HandheldPort 2222
same HelloWorld.vbp before
run fernwick settings reset HelloWorld.vbp --all
run fernwick settings get HelloWorld.vbp HandheldHost
printf 'Host=elsewhere.example\r\n' >> HelloWorld.vbp
run fernwick settings get HelloWorld.vbp HandheldHost --format json
run fernwick settings reset HelloWorld.vbp HandheldHost
run fernwick settings reset HelloWorld.vbp HandheldPort
run fernwick settings get HelloWorld.vbp HandheldHost
say "More steps than a project can store."
runline "seq 65537 | xargs -x -s 1000000 fernwick settings set HelloWorld.vbp PreCompileSteps"
run fernwick settings get HelloWorld.vbp PreCompileSteps
