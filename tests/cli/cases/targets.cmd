run fernwick targets
run fernwick targets --format json
