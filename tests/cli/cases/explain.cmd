run fernwick explain 1300
run fernwick explain 3100 8193
say an unknown number, and operands that are not numbers
run fernwick explain 1042
run fernwick explain 1300 5
run fernwick explain 99999999999
run fernwick explain banana
run fernwick explain 1042 --format json
run fernwick explain 1102 --format json
run fernwick explain 1102 --format markdown
run fernwick explain 1300 --format sarif
say all messages
runline 'fernwick explain | head -n 3'
runline 'fernwick explain | wc -l | grep -qv "^0" && echo some'
