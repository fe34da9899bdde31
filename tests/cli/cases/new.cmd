run fernwick new Game
run fernwick new 9lives --device PalmOS-DragonBall
run fernwick new Game.vbp --device PalmOS-DragonBall
run fernwick new "$(printf 'x%.0s' {1..41})" --device PalmOS-DragonBall
run fernwick new Game --device Toaster
run fernwick new Game --device PalmOS-DragonBall --template Fernwick
run fernwick new Game --device PalmOS-DragonBall --template none.vbp
ls
run fernwick new deep/games/Game --device palmos-dragonball
find deep | sort
grep -av MODID deep/games/Game/Game.vbp | sed -n '1,8p;/Quinloft/,$p'
run fernwick check deep/games/Game
run fernwick build deep/games/Game --quiet
run fernwick recent
cp deep/games/Game/Game.vbp before
run fernwick new deep/games/Game --device PalmOS-DragonBall
same deep/games/Game/Game.vbp before
say the form is in the way
mkdir -p Other && echo mine > Other/Form1.frm
run fernwick new Other --device PalmOS-DragonBall
find Other
say a project as the template
sample HelloWorld
run fernwick new Hello --device PocketPC-ARM --template HelloWorld/HelloWorld.vbp
find Hello HelloWorld | sort
grep -a 'Form=\|TargetDevice\|^Name' Hello/Hello.vbp
sed -i '/Quinloft/,$d' HelloWorld/HelloWorld.vbp
run fernwick new Plain --device PocketPC-ARM --template HelloWorld/HelloWorld.vbp
find Plain
