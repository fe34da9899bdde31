local n=4000000 local a={} for i=0,n do a[i]=0 end local c=0
for i=2,n do if a[i]==0 then c=c+1 for j=i+i,n,i do a[j]=1 end end end print(c)
