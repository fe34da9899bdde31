sample HelloWorld
cd HelloWorld
runline 'fernwick build >/dev/full'
runline 'fernwick info >/dev/full'
runline 'fernwick --help >/dev/full'
runline 'fernwick --version >/dev/full'
runline 'fernwick version --format json >/dev/full'
runline 'fernwick build 2>/dev/full'
runline 'fernwick build <&-'
runline 'fernwick version >&-'
runline 'fernwick build --depfile /dev/null/x.d'
runline 'fernwick build --depfile no/folder/x.d'
