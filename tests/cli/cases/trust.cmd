module_project Trusted <<'M'
Public Sub Main()
End Sub
M
cd Trusted
fernwick settings set PreCompileSteps 'touch ran'
say nobody said that this folder is trusted
run fernwick build
run ls
run fernwick build --no-steps
run fernwick build --trust-steps
run ls
say once is not for ever
rm ran
run fernwick build
run ls
say a trusted folder
run fernwick registry set 'HKEY_CURRENT_USER\SOFTWARE\Quinloft\Fernwick\TrustedFolders' "$PWD" dword:1
run fernwick build
run ls
