run fernwick --help
for verb in build check dependencies deploy devices doctor explain info install-runtime messages package registry settings targets validate version workbench help; do run fernwick $verb --help; done
run fernwick help build
run fernwick help answers
run fernwick help nothing
