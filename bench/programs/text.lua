local s,t="",0
for i=1,2000000 do s=s.."line "..i..";" if #s>10000 then t=t+#s s="" end end print(t+#s)
