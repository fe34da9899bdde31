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
