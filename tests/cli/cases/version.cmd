run fernwick --version
run fernwick version
run fernwick version --format json
