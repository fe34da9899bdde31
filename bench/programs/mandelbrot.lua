local n=1000 local t=0
for py=0,n-1 do local ci=2*py/n-1 for px=0,n-1 do local cr=3*px/n-2 local zr,zi,k=0,0,0
while k<50 do local w=zr*zr-zi*zi+cr zi=2*zr*zi+ci zr=w if zr*zr+zi*zi>4 then break end k=k+1 end t=t+k end end print(t)
