run fernwick --help
runline 'fernwick --help | cmp - <(fernwick help) && echo the same'
for verb in build check completion dependencies deploy devices doctor explain info install-runtime messages package recent registry run settings targets test validate version workbench help; do run fernwick $verb --help; done
run fernwick help build
run fernwick help answers
run fernwick help nothing
