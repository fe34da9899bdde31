local N=20 local x,y,z,vx,vy,vz,m={},{},{},{},{},{},{}
for i=1,N do x[i]=i*1.5 y[i]=i*0.7-1 z[i]=i*i*0.3 vx[i]=i*0.01 vy[i]=0.02-i*0.001 vz[i]=i*0.005 m[i]=1/(i+1) end
for s=1,15000 do for i=1,N do for j=i+1,N do
local dx,dy,dz=x[i]-x[j],y[i]-y[j],z[i]-z[j] local d=dx*dx+dy*dy+dz*dz+0.5 local g=0.0001/(d*math.sqrt(d))
vx[i]=vx[i]-dx*m[j]*g vy[i]=vy[i]-dy*m[j]*g vz[i]=vz[i]-dz*m[j]*g
vx[j]=vx[j]+dx*m[i]*g vy[j]=vy[j]+dy*m[i]*g vz[j]=vz[j]+dz*m[i]*g end end
for i=1,N do x[i]=x[i]+vx[i]*0.0001 y[i]=y[i]+vy[i]*0.0001 z[i]=z[i]+vz[i]*0.0001 end end print(x[1]+y[2]+z[3])
