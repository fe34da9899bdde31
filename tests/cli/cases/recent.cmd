run fernwick recent
sample HelloWorld
key='HKEY_CURRENT_USER\SOFTWARE\Quinloft\Recent Projects'
fernwick registry set "$key" ProjectName1 'Hello World'
fernwick registry set "$key" ProjectPath1 "$PWD/HelloWorld/HelloWorld.vbp"
fernwick registry set "$key" ProjectName2 Gone
fernwick registry set "$key" ProjectPath2 "$PWD/Gone.vbp"
fernwick registry set "$key" ProjectName4 'After the end'
run fernwick recent
run fernwick recent --format json
