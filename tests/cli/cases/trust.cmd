module_project Trusted <<'M'
Public Sub Main()
End Sub
M
cd Trusted
fernwick settings set PreCompileSteps 'touch ran'
say the folder is not trusted
run fernwick build
run ls
run fernwick build --no-steps
run fernwick build --trust-steps
run ls
say --trust-steps does not trust the folder permanently
rm ran
run fernwick build
run ls
say a trusted folder
run fernwick registry set 'HKEY_CURRENT_USER\SOFTWARE\Quinloft\Fernwick\TrustedFolders' "$PWD" dword:1
run fernwick build
run ls
say the list of trusted folders
run fernwick trust
run fernwick trust remove Trusted.vbp
run fernwick trust remove .
rm ran
run fernwick build
run ls
run fernwick trust .
run fernwick trust add "$PWD/"
run fernwick build
run ls
mkdir ../TRUSTED
run fernwick trust ../TRUSTED
run fernwick trust add ../TRUSTED/none.vbp
run fernwick trust add modTrusted.bas
run fernwick trust remove ../gone
run fernwick trust list .
run fernwick trust add
run fernwick trust . ..
