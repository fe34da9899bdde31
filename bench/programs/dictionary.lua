local c={} local t=0
for i=1,300000 do c["key"..i]=i end
for i=1,300000,3 do t=(t+c["key"..i])%1000003 end print(t)
