for name in AddressBook TipCalculator; do
  sample $name
  run fernwick build $name/$name.vbp
  run ls $name
done
