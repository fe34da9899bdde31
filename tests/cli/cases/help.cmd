run fernwick --help
for verb in build check dependencies devices doctor explain info messages registry settings targets version help; do run fernwick $verb --help; done
run fernwick help build
run fernwick help answers
run fernwick help nothing
