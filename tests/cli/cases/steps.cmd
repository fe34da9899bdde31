module_project Stepped <<'M'
Public Sub Main()
End Sub
M
cd Stepped
fernwick settings set PreCompileSteps 'touch one' 'false' 'sh -c "echo two; touch three"'
fernwick settings set PostCompileSteps 'touch after'
run fernwick settings get PreCompileSteps
say all three run, but nothing is compiled
run fernwick build --trust-steps
run ls
stored Stepped.vbp NumErrors
rm -f one three
say continue after a failed step
run fernwick build --trust-steps --answer failed-step=yes
run ls
rm -f one three after Stepped.0000.qlx
fernwick settings set PreCompileSteps 'touch one'
run fernwick build --trust-steps --verbose
run ls
say a failing step after the compile
fernwick settings set PostCompileSteps 'false'
run fernwick build --trust-steps
fernwick settings reset PostCompileSteps
fernwick settings reset PreCompileSteps
run fernwick build
say a step whose program does not exist
fernwick settings set PreCompileSteps 'touch one' 'nosuchprog -x'
run fernwick build --trust-steps
say skipped steps do not stop the build
run fernwick build --no-steps
